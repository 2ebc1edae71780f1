#pragma once

#include <string>
#include <vector>

#include "reports/ResultList.h"

namespace marlo {

/// Measures texts as they are drawn in a list.
class TextMeasure {
  public:
    virtual ~TextMeasure() = default;

    /// The width of a text, in pixels.
    /// @param text in UTF-8.
    virtual int WidthOf(const std::string& text) = 0;
};

/// The width in pixels of each column's widest cell as it is shown (see CellText.h), all rows
/// counted; 0 for a column of empty ones. Only the few cells that look widest by the widths of
/// their characters are measured, as measuring takes far longer than adding these up.
std::vector<int> WidestCells(const ResultList& list, TextMeasure& measure);

}  // namespace marlo
