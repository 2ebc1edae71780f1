#pragma once

#include <vector>
#include <wx/dialog.h>
#include <wx/modalhook.h>

#include "tests/soak/Playground.h"
#include "tests/soak/Record.h"

namespace marlo::soak {

/// The dialogs that are open. Counts each when it opens, and fails when a picker is about to give
/// back a path out of the playground.
class OpenDialogs final : private wxModalDialogHook {
  public:
    OpenDialogs(const Playground& playground, Record& record);

    /// The one that gets what the user does; nullptr for none.
    wxDialog* Top() const { return open_.empty() ? nullptr : open_.back(); }

    /// Whether a dialog is the desktop's own, with controls that are none of the program's.
    static bool IsPicker(const wxDialog& dialog);

  private:
    int Enter(wxDialog* dialog) override;
    void Exit(wxDialog* dialog) override;

    const Playground& playground_;
    Record& record_;
    std::vector<wxDialog*> open_;
};

}  // namespace marlo::soak
