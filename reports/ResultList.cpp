#include "reports/ResultList.h"

#include <algorithm>
#include <limits>
#include <numeric>
#include <utility>

#include "core/RunTimeError.h"
#include "reports/TextOrder.h"

namespace marlo {

namespace {

/// The 0-based index of something that is counted from 1.
std::size_t CheckedIndex(std::size_t number, std::size_t count) {
    if (number < 1 || number > count)
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
    return number - 1;
}

}  // namespace

const ResultList::ColumnHeader& ResultList::HeaderAt(int column) const {
    return columns_[CheckedIndex(static_cast<std::size_t>(column), columns_.size())];
}

int ResultList::IndexOf(Column column) const {
    const auto found = std::ranges::find(columns_, column, &ColumnHeader::column);
    return found == columns_.end() ? 0 : static_cast<int>(found - columns_.begin()) + 1;
}

std::int16_t ResultList::AddColumn(Column column, const std::string& header) {
    if (columns_.size() == rowWidth_)
        WidenRows(rowWidth_ + 1);
    columns_.push_back({column, header});
    Touch();
    return static_cast<std::int16_t>(columns_.size());
}

void ResultList::RemoveColumn(int column) {
    const std::size_t index = CheckedIndex(static_cast<std::size_t>(column), columns_.size());
    columns_.erase(columns_.begin() + static_cast<std::ptrdiff_t>(index));
    Touch();
}

ResultRow ResultList::AddRow(std::string_view key, std::string_view text) {
    const auto row = AddRowUnlessThere(key, text);
    if (!row)
        throw RunTimeError(ErrorNumber::KeyNotUnique);
    return *row;
}

std::optional<ResultRow> ResultList::AddRowUnlessThere(std::string_view key,
                                                       std::string_view text) {
    const std::size_t count = RowCount();
    // The key comes last, as it makes the row; what it does not get to is left for another row.
    icons_.resize(count + 1);
    cells_.resize((count + 1) * rowWidth_);
    // A key mostly begins with the text.
    const bool isInKey = key.starts_with(text);
    const std::string_view ownText = isInKey ? std::string_view() : keys_.Arena().Copy(text);
    if (!keys_.Add(key))
        return std::nullopt;
    Touch();
    const auto row = static_cast<ResultRow>(count);
    const std::string_view shown = isInKey ? Key(row).substr(0, text.size()) : ownText;
    CellOf(row, 0) = {.start = shown.data(), .size = static_cast<std::uint32_t>(shown.size())};
    return row;
}

void ResultList::ClearRows() {
    keys_.Clear();
    icons_.clear();
    cells_.clear();
    rowWidth_ = std::max<std::size_t>(columns_.size(), 1);
    positions_.clear();
    selected_.reset();
    Touch();
}

ResultRow ResultList::RowAt(std::size_t position) const {
    Settle();
    return static_cast<ResultRow>(positions_[CheckedIndex(position, positions_.size())]);
}

std::string_view ResultList::SubItem(ResultRow row, int subItem) const {
    return CellOf(row, CheckedSubItem(subItem)).Text();
}

void ResultList::SetSubItem(ResultRow row, int subItem, std::string_view text) {
    Cell& cell = CellOf(row, CheckedSubItem(subItem));
    const std::size_t available = std::size_t{cell.size} + cell.spare;
    isOrdered_ = false;
    Touch();
    // Dates are converted to and fro at each click on their column, which should not take memory.
    if (text.size() > available) {
        cell.start = keys_.Arena().Copy(text).data();
        cell.spare = 0;
    } else {
        TextArena::Replace(cell.start, text);
        cell.spare = static_cast<std::uint16_t>(std::min<std::size_t>(
            available - text.size(), std::numeric_limits<std::uint16_t>::max()));
    }
    cell.size = static_cast<std::uint32_t>(text.size());
}

TextColour ResultList::SubItemColour(ResultRow row, int subItem) const {
    return CellOf(row, CheckedSubItem(subItem)).colour;
}

void ResultList::SetSubItemColour(ResultRow row, int subItem, TextColour colour) {
    CellOf(row, CheckedSubItem(subItem)).colour = colour;
    Touch();
}

void ResultList::SetColour(ResultRow row, TextColour colour) {
    CellOf(row, 0).colour = colour;
    Touch();
}

/// No two lists share a revision but that of an untouched one.
void ResultList::Touch() {
    static std::size_t last = 0;
    revision_ = ++last;
}

/// @return the 0-based column of a sub-item.
std::size_t ResultList::CheckedSubItem(int subItem) const {
    if (subItem < 1 || subItem >= ColumnCount())
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
    return static_cast<std::size_t>(subItem);
}

const ResultList::Cell& ResultList::CellOf(ResultRow row, std::size_t column) const {
    return cells_[Index(row) * rowWidth_ + column];
}

ResultList::Cell& ResultList::CellOf(ResultRow row, std::size_t column) {
    return cells_[Index(row) * rowWidth_ + column];
}

/// Gives each row as many cells.
void ResultList::WidenRows(std::size_t width) {
    std::vector<Cell> cells(RowCount() * width);
    for (std::size_t row = 0; row < RowCount(); ++row)
        std::copy_n(cells_.begin() + static_cast<std::ptrdiff_t>(row * rowWidth_), rowWidth_,
                    cells.begin() + static_cast<std::ptrdiff_t>(row * width));
    cells_ = std::move(cells);
    rowWidth_ = width;
}

void ResultList::SetSortKey(int column) {
    Settle();
    if (column == sortKey_)
        return;
    sortKey_ = column;
    Touch();
    isOrdered_ = false;
    isOrderDue_ = isSorted_;
}

void ResultList::SetOrder(SortOrder order) {
    PlaceNewRows();
    if (order == order_)
        return;
    order_ = order;
    Touch();
    isOrdered_ = false;
    isOrderDue_ = isSorted_;
}

void ResultList::SetSorted(bool isSorted) {
    Settle();
    if (isSorted && !isOrdered_)
        PutInOrder();
    isSorted_ = isSorted;
    Touch();
}

ResultRow ResultList::SelectedRow() const {
    if (!selected_)
        throw RunTimeError(ErrorNumber::ObjectNotSet);
    return *selected_;
}

std::size_t ResultList::SelectedPosition() const {
    if (!selected_)
        return 0;
    Settle();
    const auto found =
        std::find(positions_.begin(), positions_.end(), static_cast<std::uint32_t>(*selected_));
    return static_cast<std::size_t>(found - positions_.begin()) + 1;
}

/// Gives the rows that were added since somebody looked their places.
void ResultList::PlaceNewRows() const {
    const std::size_t placed = positions_.size();
    if (placed == RowCount())
        return;
    positions_.resize(RowCount());
    std::iota(positions_.begin() + static_cast<std::ptrdiff_t>(placed), positions_.end(),
              static_cast<std::uint32_t>(placed));
    isOrdered_ = false;
    isOrderDue_ = isSorted_;
    Settle();
}

/// Gives every row its place.
void ResultList::Settle() const {
    PlaceNewRows();
    if (isOrderDue_)
        PutInOrder();
}

void ResultList::PutInOrder() const {
    // A sort key beyond the columns orders nothing.
    const auto column = static_cast<std::size_t>(sortKey_);
    TextOrder order(positions_.size());
    for (const std::uint32_t row : positions_)
        order.Add(column < rowWidth_ ? CellOf(static_cast<ResultRow>(row), column).Text()
                                     : std::string_view());
    std::vector<std::uint32_t> ordered = order.Numbers(order_ == SortOrder::Descending);
    for (std::uint32_t& number : ordered)
        number = positions_[number];
    positions_ = std::move(ordered);
    isOrdered_ = true;
    isOrderDue_ = false;
}

}  // namespace marlo
