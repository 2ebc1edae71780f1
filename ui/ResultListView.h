#pragma once

#include "reports/ResultPane.h"

namespace marlo {

// What the result list does by itself, whatever it shows. Nothing here tells the user of a failure;
// it is logged under the routine's name.

/// A click on a column's header: sorts the rows by that column. Another click on the column that
/// was sorted last turns the order round, and so does the first click on any column after the list
/// was built anew; a click on another column keeps the order.
///
/// A column headed "Last Modified" is sorted by date. Rows that are added later are not sorted in.
///
/// @param column 1-based.
void lstSongs_ColumnClick(ResultPane& pane, int column);

/// Replaces the second cell of every row, whatever its header, with `FormatDate` of it, to be
/// sorted.
void FormatDateColumn(ResultPane& pane);

/// Replaces the second cell of every row with `UnFormatDate` of it.
void UnFormatDateColumn(ResultPane& pane);

/// A double click on the list: opens the selected row's project where the list has a column
/// "Project", and the folder of its path where it has a column "Path", whichever is first. The user
/// is told when that cannot be done. Failures are logged under "lstSongs_dblClick", among them that
/// no row is selected.
void lstSongs_DblClick(ResultPane& pane);

}  // namespace marlo
