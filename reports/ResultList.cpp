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

void ResultList::Cell::SetText(std::string_view text) {
    if (text.size() > std::numeric_limits<std::uint32_t>::max())
        throw RunTimeError(ErrorNumber::OutOfMemory);
    start = text.data();
    size = static_cast<std::uint32_t>(text.size());
}

const std::string& ResultList::Header(int column) const {
    return headers_[CheckedIndex(static_cast<std::size_t>(column), headers_.size())];
}

std::int16_t ResultList::AddColumn(const std::string& header) {
    headers_.push_back(header);
    if (headers_.size() > rowWidth_)
        WidenRows();
    return static_cast<std::int16_t>(headers_.size());
}

void ResultList::RemoveColumn(int column) {
    const std::size_t index = CheckedIndex(static_cast<std::size_t>(column), headers_.size());
    headers_.erase(headers_.begin() + static_cast<std::ptrdiff_t>(index));
}

ResultRow ResultList::AddRow(std::string_view key, std::string_view text) {
    const auto row = AddRowUnlessThere(key, text);
    if (!row)
        throw RunTimeError(ErrorNumber::KeyNotUnique);
    return *row;
}

std::optional<ResultRow> ResultList::AddRowUnlessThere(std::string_view key,
                                                       std::string_view text) {
    if (!keys_.Add(key))
        return std::nullopt;
    const auto row = static_cast<ResultRow>(icons_.size());
    icons_.push_back(0);
    cells_.resize(cells_.size() + rowWidth_);
    isSettled_ = false;
    // A key mostly begins with the text.
    const std::string_view ownKey = Key(row);
    CellOf(row, 0).SetText(ownKey.starts_with(text) ? ownKey.substr(0, text.size())
                                                    : keys_.Arena().Copy(text));
    return row;
}

void ResultList::ClearRows() {
    keys_.Clear();
    icons_.clear();
    cells_.clear();
    rowWidth_ = std::max<std::size_t>(headers_.size(), 1);
    positions_.clear();
    isSettled_ = true;
    selected_.reset();
}

ResultRow ResultList::RowAt(std::size_t position) const {
    Settle();
    return static_cast<ResultRow>(positions_[CheckedIndex(position, positions_.size())]);
}

std::string_view ResultList::SubItem(ResultRow row, int subItem) const {
    return CellOf(row, CheckedSubItem(subItem)).Text();
}

void ResultList::SetSubItem(ResultRow row, int subItem, std::string_view text) {
    CellOf(row, CheckedSubItem(subItem)).SetText(keys_.Arena().Copy(text));
}

TextColour ResultList::SubItemColour(ResultRow row, int subItem) const {
    return CellOf(row, CheckedSubItem(subItem)).colour;
}

void ResultList::SetSubItemColour(ResultRow row, int subItem, TextColour colour) {
    CellOf(row, CheckedSubItem(subItem)).colour = colour;
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

/// Gives each row a cell for every column.
void ResultList::WidenRows() {
    std::vector<Cell> cells(RowCount() * headers_.size());
    for (std::size_t row = 0; row < RowCount(); ++row)
        std::copy_n(cells_.begin() + static_cast<std::ptrdiff_t>(row * rowWidth_), rowWidth_,
                    cells.begin() + static_cast<std::ptrdiff_t>(row * headers_.size()));
    cells_ = std::move(cells);
    rowWidth_ = headers_.size();
}

void ResultList::SetSortKey(int column) {
    Settle();
    isSettled_ = column == sortKey_;
    sortKey_ = column;
}

void ResultList::SetOrder(SortOrder order) {
    Settle();
    isSettled_ = order == order_;
    order_ = order;
}

void ResultList::SetSorted(bool isSorted) {
    Settle();
    isSettled_ = isSorted == isSorted_;
    isSorted_ = isSorted;
    Settle();
}

ResultRow ResultList::SelectedRow() const {
    if (!selected_)
        throw RunTimeError(ErrorNumber::ObjectNotSet);
    return *selected_;
}

/// Gives the rows that were added their places.
void ResultList::Settle() const {
    if (isSettled_)
        return;
    const std::size_t placed = positions_.size();
    positions_.resize(RowCount());
    std::iota(positions_.begin() + static_cast<std::ptrdiff_t>(placed), positions_.end(),
              static_cast<std::uint32_t>(placed));
    isSettled_ = true;
    if (!isSorted_)
        return;
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
}

}  // namespace marlo
