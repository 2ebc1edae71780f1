#pragma once

#include "app/gui/LedgerList.h"
#include "ui/Form1.h"

namespace marlo::gui {

/// Copies the selected rows of the result list to the clipboard.
void CopySelectedRows(const LedgerList& list, const ResultList& rows);

/// Has what was copied outlive the program.
void KeepCopiedRows();

/// Shows the result list's context menu, with what can be done with its rows.
void ShowResultListMenu(LedgerList& list, Form1& form);

}  // namespace marlo::gui
