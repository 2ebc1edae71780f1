#include <wx/evtloop.h>

#include "app/gui/GuiApp.h"
#include "bench/Report.h"

namespace {

/// Runs the benchmarks in place of an event loop.
class BenchApp final : public marlo::gui::GuiApp {
  public:
    int OnRun() override {
        wxGUIEventLoop loop;
        const wxEventLoopActivator active(&loop);
        return marlo::bench::RunAll() ? 0 : 1;
    }
};

}  // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    wxApp::SetInstance(new BenchApp);
    return wxEntry(argc, argv);
}
