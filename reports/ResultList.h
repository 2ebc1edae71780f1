#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/TextTable.h"
#include "reports/Columns.h"

namespace marlo {

/// The colour of a cell's text.
enum class TextColour : std::uint8_t { Normal, Greyed };

enum class SortOrder { Ascending = 0, Descending = 1 };

/// A row of the list, wherever it stands: 0 for the one that was added first.
enum class ResultRow : std::uint32_t {};

/// What `lstSongs` shows: columns, and rows of text cells that can be put in the order of one
/// column. A window shows it without keeping rows of its own; adding a row and finding a key take
/// constant time, and rows are put in order when somebody looks.
///
/// Columns and positions are counted from 1, as the list's users do. Where a list control would
/// fail, the routines here throw a `RunTimeError`: "Subscript out of range" for a column, position
/// or sub-item that does not exist, "Key is not unique in collection" for a key that is there
/// already. A text that is handed out stays until its cell is set again or the rows are cleared.
/// A routine that runs out of memory leaves the list as it was.
class ResultList {
  public:
    int ColumnCount() const { return static_cast<int>(columns_.size()); }
    const std::string& Header(int column) const { return HeaderAt(column).title; }
    /// What a column holds.
    Column ColumnAt(int column) const { return HeaderAt(column).column; }
    /// The first column that holds something; 0 when there is none.
    int IndexOf(Column column) const;
    /// Adds a column under its usual title. @return its index.
    std::int16_t AddColumn(Column column) { return AddColumn(column, TitleOf(column)); }
    /// Adds a column under another title.
    std::int16_t AddColumn(Column column, const std::string& header);
    /// Adds a column of other texts.
    std::int16_t AddColumn(const std::string& header) { return AddColumn(Column::Other, header); }
    /// The cells of the rows stay where they are.
    void RemoveColumn(int column);

    std::size_t RowCount() const { return keys_.Size(); }
    /// Adds a row at the end, or in its place while the list is sorted.
    ResultRow AddRow(std::string_view key, std::string_view text);
    /// The same; adds nothing when a row has exactly that key.
    std::optional<ResultRow> AddRowUnlessThere(std::string_view key, std::string_view text);
    void ClearRows();
    /// The row at a position, from the top.
    ResultRow RowAt(std::size_t position) const;

    std::string_view Key(ResultRow row) const { return keys_[Index(row)]; }
    /// The main text, which stands in column 1.
    std::string_view Text(ResultRow row) const { return CellOf(row, 0).Text(); }
    TextColour Colour(ResultRow row) const { return CellOf(row, 0).colour; }
    void SetColour(ResultRow row, TextColour colour);
    /// 1-based; 0 for none.
    int SmallIcon(ResultRow row) const { return icons_[Index(row)]; }
    void SetSmallIcon(ResultRow row, std::uint8_t icon) { icons_[Index(row)] = icon; }

    // Sub-item k of a row stands in column k + 1; there are as many as columns behind the first.

    /// The text of a cell; empty for one that was never set.
    std::string_view SubItem(ResultRow row, int subItem) const;
    void SetSubItem(ResultRow row, int subItem, std::string_view text);
    /// The text that stands in a column, whichever it is.
    std::string_view ColumnText(ResultRow row, int column) const {
        return column == 1 ? Text(row) : SubItem(row, column - 1);
    }
    /// Sets the text of a column behind the first.
    void SetColumnText(ResultRow row, int column, std::string_view text) {
        SetSubItem(row, column - 1, text);
    }
    TextColour SubItemColour(ResultRow row, int subItem) const;
    void SetSubItemColour(ResultRow row, int subItem, TextColour colour);

    /// The column whose texts order the rows, 0-based.
    int SortKey() const { return sortKey_; }
    SortOrder Order() const { return order_; }
    bool IsSorted() const { return isSorted_; }
    void SetSortKey(int column);
    void SetOrder(SortOrder order);
    /// Switched on, the rows are put in the order of the key's column (see TextOrder.h), and rows
    /// that are added take their place; switched off, they stay where they are.
    void SetSorted(bool isSorted);

    bool IsVisible() const { return isVisible_; }
    void SetVisible(bool isVisible) { isVisible_ = isVisible; }

    /// The selected row, which stays selected when the order changes.
    /// @throws RunTimeError "Object variable not set" when there is none.
    ResultRow SelectedRow() const;
    void Select(std::size_t position) { selected_ = RowAt(position); }
    void SelectNone() { selected_.reset(); }
    /// Where the selected row stands; 0 when there is none.
    std::size_t SelectedPosition() const;

    /// A number that is another one whenever a header, a text, a colour or the order may be, also
    /// when another list takes this one's place.
    std::size_t Revision() const { return revision_; }

  private:
    /// A text, which lives elsewhere, and its colour, in as little memory as possible: lists are
    /// long.
    struct Cell {
        const char* start = nullptr;
        std::uint32_t size = 0;
        std::uint16_t spare = 0;  ///< bytes behind the text that are the cell's too
        TextColour colour = TextColour::Normal;

        std::string_view Text() const { return {start, size}; }
    };

    struct ColumnHeader {
        Column column = Column::Other;
        std::string title;
    };

    const ColumnHeader& HeaderAt(int column) const;
    static std::size_t Index(ResultRow row) { return static_cast<std::size_t>(row); }
    std::size_t CheckedSubItem(int subItem) const;
    const Cell& CellOf(ResultRow row, std::size_t column) const;
    Cell& CellOf(ResultRow row, std::size_t column);
    void WidenRows(std::size_t width);
    void Touch();
    void PlaceNewRows() const;
    void Settle() const;
    void PutInOrder() const;

    std::vector<ColumnHeader> columns_;
    TextTable keys_;  ///< numbered as the rows are; the cells' texts live in its memory
    std::vector<std::uint8_t> icons_;
    std::vector<Cell> cells_;   ///< row by row
    std::size_t rowWidth_ = 1;  ///< cells of a row; at least as many as there are columns
    /// The rows from the top; those that were added since somebody looked are not in it yet.
    mutable std::vector<std::uint32_t> positions_;
    int sortKey_ = 0;
    SortOrder order_ = SortOrder::Ascending;
    bool isSorted_ = false;
    mutable bool isOrdered_ = false;   ///< nothing has changed since the rows were put in order
    mutable bool isOrderDue_ = false;  ///< they have to be put in order before anybody looks
    bool isVisible_ = true;
    std::optional<ResultRow> selected_;
    std::size_t revision_ = 0;
};

}  // namespace marlo
