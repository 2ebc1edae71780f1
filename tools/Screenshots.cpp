// Saves pictures of every window and dialog, for the documentation and for people to judge.
// Usage: marlo-screenshots FRESH_FOLDER FILLED_FOLDER PREFIX
// FRESH_FOLDER and FILLED_FOLDER are application folders before and after a first search; the
// pictures' names begin with PREFIX. Runs on a screen without other windows, of which it takes
// pictures with "import" (ImageMagick).

#include <cstdlib>
#include <deque>
#include <functional>
#include <iostream>
#include <string>
#include <utility>
#include <wx/bookctrl.h>
#include <wx/choice.h>
#include <wx/dialog.h>
#include <wx/evtloop.h>
#include <wx/image.h>
#include <wx/modalhook.h>
#include <wx/stopwatch.h>
#include <wx/textctrl.h>
#include <wx/utils.h>

#include "app/gui/Form1Window.h"
#include "app/gui/GuiApp.h"
#include "core/Settings.h"
#include "platform/Machine.h"

namespace marlo::tools {

namespace {

void RunEvents(long milliseconds = 400) {
    const wxStopWatch watch;
    while (watch.Time() < milliseconds) {
        wxEventLoopBase::GetActive()->YieldFor(wxEVT_CATEGORY_ALL);
        wxTheApp->ProcessPendingEvents();
        wxMilliSleep(5);
    }
}

/// Does something with the dialogs that open, and closes them.
class DialogVisitor final : public wxModalDialogHook {
  public:
    DialogVisitor() { Register(); }
    DialogVisitor(const DialogVisitor&) = delete;
    DialogVisitor& operator=(const DialogVisitor&) = delete;
    DialogVisitor(DialogVisitor&&) = delete;
    DialogVisitor& operator=(DialogVisitor&&) = delete;
    ~DialogVisitor() override { Unregister(); }

    std::function<void(wxDialog&)> visit;

  protected:
    int Enter(wxDialog* dialog) override {
        if (std::exchange(dialog_, dialog) == dialog)
            return wxID_NONE;  // some announce themselves twice
        dialog->CallAfter([this, dialog] {
            RunEvents();
            visit(*dialog);
            dialog->EndModal(wxID_CANCEL);
        });
        return wxID_NONE;
    }

  private:
    wxDialog* dialog_ = nullptr;
};

class Photographer {
  public:
    explicit Photographer(std::string prefix) : prefix_(std::move(prefix)) {}

    void Take(const wxWindow& window, const std::string& name) const {
        const std::string path = prefix_ + name + ".png";
        const std::string command = "import -window root 'png:" + path + "'";
        if (std::system(command.c_str()) != 0) {  // NOLINT(concurrency-mt-unsafe): one thread
            std::cerr << "marlo-screenshots: cannot take " << path << '\n';
            std::exit(1);  // NOLINT(concurrency-mt-unsafe): the same
        }
        const double scale = window.GetContentScaleFactor();
        const auto dots = [scale](int length) { return static_cast<int>(length * scale); };
        const wxRect place = window.GetScreenRect();
        wxImage screen;
        screen.LoadFile(path);
        const wxRect area =
            wxRect(dots(place.x), dots(place.y), dots(place.width), dots(place.height))
                .Intersect(wxRect(screen.GetSize()));
        screen.GetSubImage(area).SaveFile(path, wxBITMAP_TYPE_PNG);
    }

  private:
    std::string prefix_;
};

class Session {
  public:
    Session(const std::string& folder, const Photographer& photographer)
        : application_{folder,
                       platform::SystemClock(),
                       platform::SystemDesktop(),
                       platform::SystemRegistry(),
                       {}},
          photographer_(photographer),
          window_(new gui::Form1Window(application_, folder)) {
        window_->Show();
        RunEvents(1000);
    }
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;
    Session(Session&&) = delete;
    Session& operator=(Session&&) = delete;
    ~Session() {
        window_->Destroy();
        RunEvents();
    }

    void Take(const std::string& name) const {
        RunEvents();
        photographer_.Take(*window_, name);
    }

    void Click(std::size_t item) { window_->Logic().cmdButtons_Click(static_cast<int>(item)); }

    void ShowReport(std::size_t item, const std::string& name) {
        Click(item);
        Take(name);
    }

    void ShowFound(const std::string& text, const std::string& name) {
        Find<wxTextCtrl>("txtSearchText").ChangeValue(wxString::FromUTF8(text));
        constexpr int contains = 3;
        Find<wxChoice>("cboSearchType").SetSelection(contains);
        window_->Logic().cmdFind_Click();
        Take(name);
    }

    void ShowFocus(const std::string& name) {
        Find<wxWindow>("cmdbuttons(4)").SetFocus();
        window_->Logic().cmdbuttons_MouseMove(kUnusedReportItem);
        Take(name);
        window_->Logic().Form_MouseMove();
    }

    /// Without the donate button.
    void ShowAfterAMinute(const std::string& name) {
        for (int second = 0; second < 60; ++second)
            window_->Logic().Timer1_Timer();
        Take(name);
    }

    void ShowRun(const std::string& name) {
        window_->CallAfter([this, name] {
            window_->Update();
            wxMilliSleep(100);
            wxEventLoopBase::GetActive()->YieldFor(wxEVT_CATEGORY_UI);
            photographer_.Take(*window_, name);
        });
        Click(kInventoryItem);
    }

    void ShowOptions(const std::string& name) {
        DialogVisitor visitor;
        visitor.visit = [&](wxDialog& dialog) {
            auto& tabs = Find<wxBookCtrlBase>("Tabs");
            for (std::size_t tab = 0; tab < tabs.GetPageCount(); ++tab) {
                tabs.SetSelection(tab);
                RunEvents();
                photographer_.Take(dialog, name + "-" + std::to_string(tab + 1));
            }
        };
        Click(kOptionsItem);
    }

    void ShowDialogOf(std::size_t item, const std::string& name) {
        DialogVisitor visitor;
        visitor.visit = [&](wxDialog& dialog) { photographer_.Take(dialog, name); };
        Click(item);
    }

    void ShowMessage(const Message& message, const std::string& name) {
        DialogVisitor visitor;
        visitor.visit = [&](wxDialog& dialog) { photographer_.Take(dialog, name); };
        window_->Logic().ShowMessage(message);
    }

  private:
    template <class Control>
    Control& Find(const char* name) const {
        return dynamic_cast<Control&>(*wxWindow::FindWindowByName(name));
    }

    Application application_;
    const Photographer& photographer_;
    gui::Form1Window* window_;
};

void TakeAll(const std::string& freshFolder, const std::string& filledFolder,
             const Photographer& photographer) {
    {
        Session fresh(freshFolder, photographer);
        fresh.Take("main-first-start");
        fresh.ShowOptions("options-empty");
    }
    Session filled(filledFolder, photographer);
    filled.Take("main-start");
    filled.ShowReport(kUsedReportItem, "main-used");
    filled.ShowFocus("main-focus-and-hover");
    filled.ShowReport(kUninstalledReportItem, "main-uninstalled");
    filled.ShowFound("a", "main-found");
    filled.ShowFound("nowhere", "main-nothing-found");
    filled.ShowRun("main-run");
    filled.ShowOptions("options");
    filled.ShowDialogOf(kAboutItem, "about");
    filled.ShowMessage({.text = "Include Subfolders in the search?",
                        .buttons = MessageButtons::YesNoCancel,
                        .icon = MessageIcon::Question,
                        .title = ""},
                       "message-question");
    filled.ShowMessage({.text = "An unexpected error occurred.", .icon = MessageIcon::Exclamation},
                       "message-exclamation");
    filled.ShowMessage({.text = "Cancelled", .icon = MessageIcon::Information},
                       "message-information");
    filled.ShowAfterAMinute("main-after-a-minute");
}

class ScreenshotsApp final : public gui::GuiApp {
  public:
    bool OnInit() override {
        GuiApp::OnInit();
        return argc == 4;
    }
    int OnRun() override {
        wxGUIEventLoop loop;
        const wxEventLoopActivator active(&loop);
        const auto argument = [this](int i) { return argv[i].ToStdString(wxConvUTF8); };
        TakeAll(argument(1), argument(2), Photographer(argument(3)));
        return 0;
    }
};

}  // namespace

}  // namespace marlo::tools

int main(int argc, char** argv) {
    wxApp::SetInstance(new marlo::tools::ScreenshotsApp);
    return wxEntry(argc, argv);
}
