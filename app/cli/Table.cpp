#include "app/cli/Table.h"

#include <algorithm>

#include "app/cli/TerminalText.h"

namespace marlo::cli {

namespace {

constexpr int kMaxColumnWidth = 60;
constexpr std::size_t kGap = 2;

}  // namespace

Table::Table(const std::vector<std::string>& headers) {
    AddRow(headers);
}

void Table::AddRow(const std::vector<std::string>& fields) {
    std::vector<std::string> row;
    for (const std::string& field : fields) {
        const bool isLast = row.size() + 1 == fields.size();
        std::string printable = Printable(field);
        row.push_back(isLast ? std::move(printable) : FitToWidth(printable, kMaxColumnWidth));
    }
    rows_.push_back(std::move(row));
}

void Table::Print(std::ostream& out) const {
    const std::size_t columns = rows_.front().size();
    std::vector<int> widths(columns);
    for (const auto& row : rows_)
        for (std::size_t i = 0; i < columns; ++i)
            widths[i] = std::max(widths[i], DisplayWidth(row[i]));
    for (const auto& row : rows_) {
        for (std::size_t i = 0; i + 1 < columns; ++i) {
            const auto padding = static_cast<std::size_t>(widths[i] - DisplayWidth(row[i]));
            out << row[i] << std::string(padding + kGap, ' ');
        }
        out << row.back() << '\n';
    }
}

}  // namespace marlo::cli
