#include "tests/gui/DialogHandlers.h"

#include <exception>
#include <string>
#include <utility>
#include <wx/app.h>

#include <gtest/gtest.h>

#include "tests/gui/Events.h"

namespace marlo::test {

namespace {

void HandleUnexpected(Dialog& dialog) {
    ADD_FAILURE() << "nobody expects the dialog " << dialog.Title();
    dialog.Cancel();
}

void Run(Dialog& dialog, const DialogHandlers::Handler& handler) {
    EXPECT_TRUE(RunEventsUntil([&] { return dialog.HasKeyboard(); }))
        << "the keyboard does not go to the dialog " << dialog.Title();
    RunEvents();
    const std::string title = dialog.Title();
    try {
        handler(dialog);
    } catch (const std::exception& error) {  // must not pass through the toolkit
        ADD_FAILURE() << "in the dialog " << title << ": " << error.what();
    }
    if (RunEventsUntil([&] { return !dialog.IsOpen(); }))
        return;
    ADD_FAILURE() << "the dialog " << title << " was left open";
    dialog.Cancel();
}

}  // namespace

DialogHandlers::DialogHandlers()
    : watch_([this](std::shared_ptr<Dialog> dialog) { OnOpen(std::move(dialog)); }) {}

DialogHandlers::~DialogHandlers() {
    EXPECT_TRUE(handlers_.empty()) << handlers_.size() << " dialogs have not opened";
}

void DialogHandlers::OnOpen(std::shared_ptr<Dialog> dialog) {
    Handler handler = HandleUnexpected;
    if (!handlers_.empty()) {
        handler = std::move(handlers_.front());
        handlers_.pop_front();
    }
    wxTheApp->CallAfter([dialog = std::move(dialog), handler] { Run(*dialog, handler); });
}

}  // namespace marlo::test
