#include <algorithm>
#include <array>
#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <glib.h>
#include <iostream>
#include <memory>
#include <random>
#include <string>
#include <string_view>

#include "app/gui/GuiApp.h"
#include "tests/soak/Failure.h"
#include "tests/soak/Soak.h"

namespace marlo::soak {

namespace {

class SoakApp final : public gui::GuiApp {
  public:
    SoakApp(std::chrono::seconds time, std::uint32_t seed) : soak_(time, seed) {}

    bool OnInit() override {
        gui::GuiApp::OnInit();
        SetExitOnFrameDelete(false);
        soak_.Begin();
        return true;
    }

    int OnRun() override {
        gui::GuiApp::OnRun();  // until the time is over
        return soak_.Report() ? EXIT_SUCCESS : EXIT_FAILURE;
    }

    void OnAssertFailure(const wxChar* file, int line, const wxChar* function,
                         const wxChar* condition, const wxChar* message) override {
        Fail(wxString::Format("%s:%d: %s: %s (%s)", file, line, function, condition, message)
                 .utf8_string());
    }

    bool OnExceptionInMainLoop() override { Fail("an exception has come to the event loop"); }

  private:
    Soak soak_;
};

std::string_view MessageIn(const GLogField* fields, gsize count) {
    for (gsize i = 0; i < count; ++i)
        if (std::string_view(fields[i].key) == "MESSAGE")
            return static_cast<const char*>(fields[i].value);
    return {};
}

/// What the toolkit complains of by itself.
bool IsToolkitsOwn(std::string_view message) {
    constexpr std::array own = {
        // It has no room for the parts of a scroll bar in a list of a few pixels, and draws none.
        "gtk_box_gadget_distribute: assertion 'size >= 0' failed in GtkScrollbar",
        // The list of a choice is opened by a press on it while it is on its way to be closed.
        "gdk_window_get_window_type: assertion 'GDK_IS_WINDOW (window)' failed",
        // An event comes for a part of a window that has just gone.
        "_gtk_widget_captured_event: assertion 'WIDGET_REALIZED_FOR_EVENT (widget, event)' failed",
        "gtk_widget_event: assertion 'WIDGET_REALIZED_FOR_EVENT (widget, event)' failed",
        // What the picker has looked up in a folder comes when the picker has gone.
        "gtk_tree_view_set_model: assertion 'GTK_IS_TREE_VIEW (tree_view)' failed",
        "gtk_tree_view_get_selection: assertion 'GTK_IS_TREE_VIEW (tree_view)' failed",
        // It asks for the text field of a choice with pictures, which has none, at each key.
        "g_signal_connect_data: assertion 'G_TYPE_CHECK_INSTANCE (instance)' failed",
        "g_signal_handler_block: assertion 'G_TYPE_CHECK_INSTANCE (instance)' failed",
        "g_signal_handler_unblock: assertion 'G_TYPE_CHECK_INSTANCE (instance)' failed",
        "g_signal_handler_disconnect: assertion 'G_TYPE_CHECK_INSTANCE (instance)' failed",
        "gtk_entry_im_context_filter_keypress: assertion 'GTK_IS_ENTRY (entry)' failed",
    };
    return std::find(own.begin(), own.end(), message) != own.end();
}

GLogWriterOutput OnToolkitLog(GLogLevelFlags level, const GLogField* fields, gsize count,
                              gpointer /*data*/) {
    const std::string_view message = MessageIn(fields, count);
    if (IsToolkitsOwn(message))
        return G_LOG_WRITER_HANDLED;
    if ((level & (G_LOG_LEVEL_ERROR | G_LOG_LEVEL_CRITICAL)) != 0)
        Fail(std::string(message));
    return g_log_writer_default(level, fields, count, nullptr);
}

}  // namespace

}  // namespace marlo::soak

/// Arguments: for how many seconds, and a seed that chooses what is done.
int main(int argc, char** argv) {
    using namespace marlo::soak;
    const std::chrono::seconds time(argc > 1 ? std::stoul(argv[1]) : 120);
    const auto seed =
        argc > 2 ? static_cast<std::uint32_t>(std::stoul(argv[2])) : std::random_device()();
    const std::string name = "seed " + std::to_string(seed);
    SetRunName(name);
    std::cout << name << std::endl;
    g_log_set_writer_func(OnToolkitLog, nullptr, nullptr);
    wxApp::SetInstance(new SoakApp(time, seed));
    int words = 1;
    return wxEntry(words, argv);
}
