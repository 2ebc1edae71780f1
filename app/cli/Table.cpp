#include "app/cli/Table.h"

#include <algorithm>
#include <utility>

#include "app/cli/TerminalText.h"

namespace marlo::cli {

namespace {

constexpr std::size_t kGap = 2;
constexpr int kMostAligned = 200;  // cells
constexpr const char* kDim = "\x1b[2m";
constexpr const char* kUsual = "\x1b[0m";

}  // namespace

Table::Table(const std::vector<std::string>& headers, int maxColumnWidth)
    : maxColumnWidth_(maxColumnWidth) {
    AddRow(headers);
}

void Table::AddRow(const std::vector<std::string>& fields, bool isDimmed) {
    Row row{.fields = {}, .isDimmed = isDimmed};
    for (const std::string& field : fields) {
        const bool isLast = row.fields.size() + 1 == fields.size();
        std::string printable = Printable(field);
        row.fields.push_back(isLast ? std::move(printable)
                                    : FitToWidth(printable, maxColumnWidth_));
    }
    rows_.push_back(std::move(row));
    hasDimmedRows_ = hasDimmedRows_ || isDimmed;
}

std::vector<int> Table::Widths() const {
    std::vector<int> widths(rows_.front().fields.size());
    for (const Row& row : rows_)
        for (std::size_t i = 0; i < widths.size(); ++i)
            if (const int width = DisplayWidth(row.fields[i]); width <= kMostAligned)
                widths[i] = std::max(widths[i], width);
    return widths;
}

/// What stands in front of a row.
std::string_view Table::GutterOf(const Row& row, bool hasColours) const {
    if (!hasDimmedRows_ || hasColours)
        return {};
    return row.isDimmed ? "* " : "  ";
}

void Table::Print(std::ostream& out, bool hasColours) const {
    const std::vector<int> widths = Widths();
    for (const Row& row : rows_) {
        std::string line(GutterOf(row, hasColours));
        for (std::size_t i = 0; i < widths.size(); ++i) {
            const int padding = std::max(widths[i] - DisplayWidth(row.fields[i]), 0);
            line.append(row.fields[i]).append(static_cast<std::size_t>(padding) + kGap, ' ');
        }
        line.erase(line.find_last_not_of(' ') + 1);
        if (row.isDimmed && hasColours)
            out << kDim << line << kUsual << '\n';
        else
            out << line << '\n';
    }
}

}  // namespace marlo::cli
