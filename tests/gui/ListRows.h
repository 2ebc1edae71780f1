#pragma once

#include "app/gui/LedgerList.h"

namespace marlo::test {

// Where the rows of a list are. Rows and columns are counted from 0.

/// The window that the rows are in; on some systems, that is the list itself.
wxWindow& RowsOf(gui::LedgerList& list);
/// A row's place in that window.
wxRect PlaceOfRow(gui::LedgerList& list, long row);
/// A point in a row where it can be clicked.
wxPoint PointInRow(gui::LedgerList& list, long row);

/// A header's middle in the list itself, which has at least one row.
wxPoint MiddleOfHeader(gui::LedgerList& list, int column);

/// The colours that a row is to be seen in; the text's as far as its thin lines tell.
wxColour TextColour(gui::LedgerList& list, long row);
wxColour BandColour(gui::LedgerList& list, long row);

}  // namespace marlo::test
