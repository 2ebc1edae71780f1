#include "tests/support/ReportTest.h"

#include <algorithm>
#include <ostream>

namespace marlo::test {

const Texts ReportTest::kUnexpected = {"An unexpected error occurred."};

void PrintTo(const ShownRow& row, std::ostream* out) {
    *out << (row.isGreyed ? "greyed {" : "{");
    for (const std::string& cell : row.cells)
        *out << " \"" << cell << '"';
    *out << " }";
}

Texts HeadersOf(const ResultList& list) {
    Texts headers;
    for (int column = 1; column <= list.ColumnCount(); ++column)
        headers.push_back(list.Header(column));
    return headers;
}

ShownRows RowsOf(const ResultList& list) {
    ShownRows rows;
    for (std::size_t position = 1; position <= list.RowCount(); ++position) {
        const ResultRow row = list.RowAt(position);
        EXPECT_EQ(list.SmallIcon(row), kRowIcon);
        ShownRow shown{.cells = {std::string(list.Text(row))},
                       .isGreyed = list.Colour(row) == TextColour::Greyed};
        for (int subItem = 1; subItem < list.ColumnCount(); ++subItem) {
            shown.cells.emplace_back(list.SubItem(row, subItem));
            EXPECT_EQ(list.SubItemColour(row, subItem), list.Colour(row));
        }
        rows.push_back(shown);
    }
    return rows;
}

Texts NamesOf(const ResultList& list) {
    Texts names;
    for (const ShownRow& row : RowsOf(list))
        names.push_back(row.cells.front());
    return names;
}

void ReportTest::WriteRecords(const std::string& name, const std::vector<Texts>& records) const {
    std::string text;
    for (const Texts& fields : records) {
        std::string line;
        for (const std::string& field : fields)
            line += (line.empty() ? "" : ",") + Quoted(field);
        text += line + "\r\n";
    }
    folder.Write("resultfiles/" + name, text);
}

void ReportTest::AddColumns(const Texts& headers) {
    for (const std::string& header : headers) {
        const auto* const found = std::ranges::find(kColumnTitles, header);
        const bool isKnown = found != kColumnTitles.end();
        const auto column = static_cast<Column>(found - kColumnTitles.begin());
        pane.lstSongs.AddColumn(isKnown ? column : Column::Plugin, header);
    }
}

}  // namespace marlo::test
