#include <algorithm>
#include <array>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <dlfcn.h>
#include <execinfo.h>
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

/// Whether GTK has come from its event loop to what it complains of without any other code: its
/// picker works on when it is gone.
bool HasGtkDoneItAlone() {
    constexpr std::array libraries = {"libgtk-3.", "libgdk-3.", "libglib-2.", "libgobject-2.",
                                      "libgio-2."};
    std::array<void*, 100> stack{};
    const auto depth = static_cast<std::size_t>(backtrace(stack.data(), stack.size()));
    bool isInGtk = false;  // else still in this program, which has been told of the complaint
    for (std::size_t i = 0; i < depth; ++i) {
        Dl_info place{};
        if (dladdr(stack.at(i), &place) == 0)
            return false;
        const bool isGtk = std::any_of(libraries.begin(), libraries.end(), [&](const char* name) {
            return std::string_view(place.dli_fname).find(name) != std::string_view::npos;
        });
        if (isInGtk && !isGtk)
            return false;
        isInGtk = isGtk;
        if (place.dli_sname != nullptr &&
            place.dli_sname == std::string_view("g_main_context_dispatch"))
            return true;
    }
    return false;
}

/// What is known of the toolkit's own complaints.
bool IsToolkitsOwn(std::string_view message) {
    constexpr std::array own = {
        // It has no room for the parts of a scroll bar in a list of a few pixels, and draws none.
        "gtk_box_gadget_distribute: assertion 'size >= 0' failed in GtkScrollbar",
        // The list of a choice is opened by a press on it while it is on its way to be closed.
        "gdk_window_get_window_type: assertion 'GDK_IS_WINDOW (window)' failed",
        // An event comes for a part of a window that has just gone.
        "_gtk_widget_captured_event: assertion 'WIDGET_REALIZED_FOR_EVENT (widget, event)' failed",
        "gtk_widget_event: assertion 'WIDGET_REALIZED_FOR_EVENT (widget, event)' failed",
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
    if ((level & (G_LOG_LEVEL_ERROR | G_LOG_LEVEL_CRITICAL)) != 0 && !HasGtkDoneItAlone())
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
