#include <wx/app.h>
#include <wx/evtloop.h>
#include <wx/image.h>

#include <gtest/gtest.h>

namespace {

/// Runs the tests in place of an event loop; they let events run themselves.
class TestApp final : public wxApp {
  public:
    bool OnInit() override {
        wxInitAllImageHandlers();
        return true;
    }
    int OnRun() override {
        wxGUIEventLoop loop;
        const wxEventLoopActivator active(&loop);
        return RUN_ALL_TESTS();
    }
    void OnAssertFailure(const wxChar* file, int line, const wxChar* function,
                         const wxChar* condition, const wxChar* message) override {
        ADD_FAILURE() << wxString::Format("%s:%d: %s: %s (%s)", file, line, function, condition,
                                          message);
    }
};

}  // namespace

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (GTEST_FLAG_GET(list_tests))
        return RUN_ALL_TESTS();  // needs no display
    wxApp::SetInstance(new TestApp);
    return wxEntry(argc, argv);
}
