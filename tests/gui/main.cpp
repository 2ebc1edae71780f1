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
};

}  // namespace

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (GTEST_FLAG_GET(list_tests))
        return RUN_ALL_TESTS();  // needs no display
    wxApp::SetInstance(new TestApp);
    return wxEntry(argc, argv);
}
