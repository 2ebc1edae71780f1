#include "tests/gui/DialogHandlers.h"

#include <algorithm>
#include <exception>
#include <string>
#include <utility>
#include <wx/msgdlg.h>

#include <gtest/gtest.h>

#include "tests/gui/Display.h"
#include "tests/gui/Events.h"

namespace marlo::test {

namespace {

std::string NameOf(const wxDialog& dialog) {
    const auto* const message = dynamic_cast<const wxMessageDialogBase*>(&dialog);
    return (message == nullptr ? dialog.GetTitle() : message->GetMessage()).utf8_string();
}

void Run(wxDialog& dialog, const DialogHandlers::Handler& handler) {
    EXPECT_TRUE(RunEventsUntil([&] { return HasKeyboard(dialog); }))
        << "the keyboard does not go to the dialog " << NameOf(dialog);
    RunEvents();
    try {
        handler(dialog);
    } catch (const std::exception& error) {  // must not pass through the toolkit
        ADD_FAILURE() << "in the dialog " << NameOf(dialog) << ": " << error.what();
    }
    if (RunEventsUntil([&] { return !dialog.IsModal(); }))
        return;
    ADD_FAILURE() << "the dialog " << NameOf(dialog) << " was left open";
    dialog.EndModal(wxID_CANCEL);
}

}  // namespace

DialogHandlers::~DialogHandlers() {
    EXPECT_TRUE(handlers_.empty()) << handlers_.size() << " dialogs have not opened";
}

int DialogHandlers::Enter(wxDialog* dialog) {
    // Some kinds of dialog say twice that they open.
    if (std::find(open_.begin(), open_.end(), dialog) != open_.end())
        return wxID_NONE;
    ++count_;
    if (handlers_.empty()) {
        ADD_FAILURE() << "nobody expects the dialog " << NameOf(*dialog);
        return wxID_CANCEL;
    }
    open_.push_back(dialog);
    dialog->CallAfter([dialog, handler = std::move(handlers_.front())] { Run(*dialog, handler); });
    handlers_.pop_front();
    return wxID_NONE;
}

void DialogHandlers::Exit(wxDialog* dialog) {
    std::erase(open_, dialog);
}

}  // namespace marlo::test
