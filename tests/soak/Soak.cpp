#include "tests/soak/Soak.h"

#include <csignal>
#include <gtk/gtk.h>
#include <iostream>
#include <sstream>
#include <string_view>
#include <unistd.h>
#include <wx/app.h>

#include "tests/soak/Failure.h"
#include "ui/CommandItems.h"

namespace marlo::soak {

namespace {

constexpr int kInterval = 8;  // milliseconds
constexpr std::chrono::seconds kBetweenRests{2};
constexpr unsigned kPatience = 30;  // seconds without an event
constexpr std::chrono::seconds kLongestWayToRest{30};

constexpr std::ptrdiff_t kMostGrowth = std::ptrdiff_t{2} << 20;  // bytes

}  // namespace

Soak::Soak(std::chrono::seconds time, std::uint32_t seed)
    : time_(time), dialogs_(playground_, record_), user_(seed, dialogs_, record_) {
    for (const CommandItem& item : kCommandItems)
        record_.Require(std::string("command: ") + item.caption);
    for (const char* what : {"command: cmdFind", "command: btnDonate", "message: Cancelled",
                             "run: Search SX Projects", "run: Find installed Plugins"})
        record_.Require(what);
}

void Soak::Begin() {
    (void)std::signal(SIGALRM, [](int /*signal*/) { Fail("no event has run for a while"); });
    begin_ = std::chrono::steady_clock::now();
    nextRest_ = begin_ + kBetweenRests;
    Start(kInterval);
}

double Soak::PartOver() const {
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin_) / time_;
}

void Soak::Notify() {
    alarm(kPatience);
    if (isOver_) {
        // A click that was still to come may open a menu, and the event loop ends behind it.
        if (window_ != nullptr)
            (void)user_.Calm(*window_);
        return;
    }
    if (window_ == nullptr)
        return Open();
    NoteRun();
    if (std::chrono::steady_clock::now() < nextRest_)
        return user_.Act(*window_);
    const char* const disturbance = user_.Calm(*window_);
    if (disturbance == nullptr)
        Rest();
    else if (std::chrono::steady_clock::now() > nextRest_ + kLongestWayToRest)
        Fail(std::string("the window does not come to rest: ") + disturbance);
}

void Soak::Open() {
    record_.Count("window opened");
    window_ = new gui::Form1Window(playground_.App(), "https://marlo.example");
    window_->Bind(wxEVT_DESTROY, [this](wxWindowDestroyEvent& event) {
        event.Skip();
        if (event.GetEventObject() == window_)
            window_ = nullptr;
    });
    for (std::size_t i = 0; i < kCommandItemCount; ++i)
        CountClicks(dynamic_cast<gui::PictureControl*>(wxWindow::FindWindowByName(
                        "cmdbuttons(" + std::to_string(i) + ")", window_)),
                    kCommandItems.at(i).caption);
    for (const char* name : {"cmdFind", "btnDonate"})
        CountClicks(dynamic_cast<gui::PictureControl*>(wxWindow::FindWindowByName(name, window_)),
                    name);
    // Each time that the toolkit's choice of emoji is opened, it keeps 8 MB.
    gtk_entry_set_input_hints(
        GTK_ENTRY(wxWindow::FindWindowByName("txtSearchText", window_)->GetHandle()),
        GTK_INPUT_HINT_NO_EMOJI);
    window_->Show();
}

void Soak::CountClicks(gui::PictureControl* control, const std::string& name) {
    control->onClick = [this, name, action = control->onClick] {
        record_.Count("command: " + name);
        if (name != "Cancel")
            run_ = name;
        action();
    };
}

void Soak::NoteRun() {
    const bool isRunning =
        wxWindow::FindWindowByName("cmdbuttons(" + std::to_string(kCancelItem) + ")", window_)
            ->IsEnabled();
    if (isRunning && !wasRunning_)
        record_.Count("run: " + run_);
    wasRunning_ = isRunning;
}

void Soak::Rest() {
    heap_.Sample(PartOver());
    playground_.Freshen();
    playground_.Desktop().shellRequests.clear();
    // What the shell is asked for is done for a while, and then not.
    int& answer = playground_.Desktop().shellAnswer;
    answer = answer > platform::kLastShellFailure ? 0 : platform::kLastShellFailure + 1;
    nextRest_ = std::chrono::steady_clock::now() + kBetweenRests;
    // What is rare may need some more time.
    if (PartOver() < (record_.Missing().empty() ? 1 : 2))
        return;
    isOver_ = true;
    wxTheApp->ExitMainLoop();
}

void Soak::CountLogEntries() {
    constexpr std::string_view begin = "Procedure: ";
    std::istringstream log(playground_.Log());
    for (std::string line; std::getline(log, line);)
        if (const auto at = line.find(begin); at != std::string::npos)
            record_.Count("logged: " + line.substr(at + begin.size()));
}

bool Soak::Report() {
    Stop();
    alarm(0);
    CountLogEntries();
    record_.Print(std::cout);
    heap_.Print(std::cout);
    std::cout << "growth: " << heap_.Growth() << " bytes, at most " << kMostGrowth << '\n';
    bool isWell = true;
    for (const std::string& what : record_.Missing()) {
        isWell = false;
        std::cout << "never: " << what << '\n';
    }
    if (heap_.Growth() > kMostGrowth) {
        isWell = false;
        std::cout << "memory leaks\n";
    }
    std::cout << std::flush;
    return isWell;
}

}  // namespace marlo::soak
