// Opens a window and ends when it has been painted. Usage: marlo-start-probe empty|marlo FOLDER

#include <cstdlib>
#include <iostream>
#include <string>
#include <wx/eventfilter.h>
#include <wx/frame.h>
#include <wx/panel.h>

#include "app/gui/Form1Window.h"
#include "app/gui/GuiApp.h"
#include "platform/Machine.h"

namespace {

/// Ends the program at the first idle moment after something was painted.
class EndWhenPainted final : public wxEventFilter {
  public:
    int FilterEvent(wxEvent& event) override {
        if (event.GetEventType() == wxEVT_PAINT)
            hasPainted_ = true;
        else if (event.GetEventType() == wxEVT_IDLE && hasPainted_)
            std::_Exit(0);
        return Event_Skip;
    }

  private:
    bool hasPainted_ = false;
};

class ProbeApp final : public marlo::gui::GuiApp {
  public:
    explicit ProbeApp(bool isMarlo) : isMarlo_(isMarlo) {}

    bool OnInit() override {
        wxEvtHandler::AddFilter(&filter_);
        wxFrame* const frame = isMarlo_ ? MarloWindow() : EmptyWindow();
        frame->Show();
        return true;
    }

  private:
    static wxFrame* EmptyWindow() {
        auto* const frame =
            new wxFrame(nullptr, wxID_ANY, "Empty", wxDefaultPosition, wxSize(1040, 660));
        auto* const panel = new wxPanel(frame);
        panel->Bind(wxEVT_PAINT, [](wxPaintEvent& event) { event.Skip(); });
        return frame;
    }

    wxFrame* MarloWindow() {
        GuiApp::OnInit();
        application_.folder = argv[2].ToStdString();
        return new marlo::gui::Form1Window(application_, "");
    }

    bool isMarlo_;
    EndWhenPainted filter_;
    marlo::Application application_{"",
                                    marlo::platform::SystemClock(),
                                    marlo::platform::SystemDesktop(),
                                    marlo::platform::SystemRegistry(),
                                    {}};
};

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "Usage: marlo-start-probe empty|marlo FOLDER\n";
        return 2;
    }
    wxApp::SetInstance(new ProbeApp(std::string(argv[1]) == "marlo"));
    return wxEntry(argc, argv);
}
