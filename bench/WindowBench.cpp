// What the window costs: a run in it against the same run without, and its start against that of an
// empty one.

#include <filesystem>
#include <string>
#include <system_error>
#include <unistd.h>
#include <utility>
#include <wx/app.h>
#include <wx/evtloop.h>
#include <wx/image.h>

#include <benchmark/benchmark.h>

#include "app/gui/Form1Window.h"
#include "bench/Baselines.h"
#include "bench/Data.h"
#include "bench/QuietWindow.h"
#include "bench/Report.h"
#include "scan/SearchRun.h"

namespace marlo::bench {
namespace {

using benchmark::State;

/// Answers the questions of a run, and hands everything else to a window.
template <class Window>
class Answering final : public MainWindow {
  public:
    Answering(Window& window, std::string folder) : window_(window), folder_(std::move(folder)) {}

    void SetText1(const std::string& text) override { window_.SetText1(text); }
    void SetText2(const std::string& text) override { window_.SetText2(text); }
    void ClearStatusBar() override { window_.ClearStatusBar(); }
    void Repaint() override { window_.Repaint(); }
    void LetEventsRun() override { window_.LetEventsRun(); }
    void SetHourglass(bool isShown) override { window_.SetHourglass(isShown); }
    void AutoSizeListViewColumns() override { window_.AutoSizeListViewColumns(); }
    void SetListViewLedger(std::int32_t bar1, std::int32_t bar2, std::int32_t kind) override {
        window_.SetListViewLedger(bar1, bar2, kind);
    }
    std::string CancelTag() const override { return window_.CancelTag(); }
    void SetCancelTag(const std::string& tag) override { window_.SetCancelTag(tag); }
    void DisableButtons() override { window_.DisableButtons(); }
    void EnableButtons() override { window_.EnableButtons(); }
    MessageAnswer ShowMessage(const Message& /*message*/) override { return MessageAnswer::Yes; }
    std::string PickFolder(const std::string& /*prompt*/,
                           const std::string& /*startFolder*/) override {
        return folder_;
    }

  private:
    Window& window_;
    std::string folder_;
};

/// The folder of a program with its pictures. It is in memory, since the pace of writing to a disk
/// changes more from one search to the next than a window costs.
class ProgramFolder {
  public:
    ProgramFolder() {
        std::filesystem::create_directories(path_ / "resultfiles");
        std::filesystem::copy(MARLO_ICONS, path_ / "icons");
    }
    ProgramFolder(const ProgramFolder&) = delete;
    ProgramFolder& operator=(const ProgramFolder&) = delete;
    ProgramFolder(ProgramFolder&&) = delete;
    ProgramFolder& operator=(ProgramFolder&&) = delete;
    ~ProgramFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }

    std::string Path() const { return path_.string(); }

  private:
    const std::filesystem::path path_ = "/dev/shm/marlo-bench-" + std::to_string(getpid());
};

Application SearchApplication() {
    static const ProgramFolder programFolder;
    const std::string folder = programFolder.Path();
    Application application = BenchApplication();
    return {folder, application.clock, application.desktop, application.registry, {}};
}

template <class Window>
void Search(State& state, const Application& application, Window& window, std::size_t projects) {
    Answering<Window> answering(window, ProjectFolder(projects));
    for (auto iteration : state) {
        SearchLists lists;
        const SearchSummary summary = GetPlugins4AllProjects(application, answering, lists);
        if (summary.projects != projects)
            state.SkipWithError("not every project was searched");
    }
}

void SearchWithoutWindow(State& state, std::size_t projects) {
    const Application application = SearchApplication();
    QuietWindow window;
    Search(state, application, window, projects);
}

void SearchInWindow(State& state, std::size_t projects) {
    const Application application = SearchApplication();
    auto* const window = new gui::Form1Window(application, "");
    window->Show();
    for (int i = 0; i < 100; ++i) {  // until it stands there
        wxEventLoopBase::GetActive()->YieldFor(wxEVT_CATEGORY_ALL);
        wxMilliSleep(10);
    }
    Search(state, application, window->Logic(), projects);
    window->Destroy();
    wxTheApp->ProcessPendingEvents();
    wxTheApp->ProcessIdle();
}

void Start(State& state, const std::string& kind) {
    RunProgram(state, {MARLO_START_PROBE, kind, SearchApplication().folder});
}

const bool registered = [] {
    Register({.name = "search-in-window",
              .what = "search of projects of 80 KiB in the window",
              .run = SearchInWindow,
              .baselineName = "without a window",
              .baseline = SearchWithoutWindow,
              .sizes = {500, 1000, 2000},
              .mostRatio = 1.1,
              .mostGrowth = 1.5});
    Register({.name = "start",
              .what = "start to the painted window",
              .run = [](State& state, std::size_t /*size*/) { Start(state, "marlo"); },
              .baselineName = "an empty window of the toolkit",
              .baseline = [](State& state, std::size_t /*size*/) { Start(state, "empty"); },
              .sizes = {1},
              .mostRatio = 1.3,
              .mostGrowth = 1});
    return true;
}();

}  // namespace
}  // namespace marlo::bench
