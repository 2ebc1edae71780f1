#include "app/cli/ListOutput.h"

#include <iostream>
#include <string_view>
#include <vector>

#include "app/cli/CommandSupport.h"
#include "app/cli/JsonList.h"
#include "app/cli/Table.h"
#include "app/cli/TerminalText.h"
#include "platform/Terminal.h"
#include "reports/ColumnTitles.h"
#include "reports/ListPage.h"

namespace marlo::cli {

namespace {

/// What a column is called in JSON, whatever report it belongs to.
std::string JsonName(const std::string& header, int column) {
    if (header == column_title::kProject)
        return "project";
    if (header == column_title::kModified)
        return "modified";
    if (header == column_title::kType)
        return "type";
    if (header == column_title::kPath)
        return "path";
    if (header == column_title::kStatus)
        return "state";
    return column == 1 || header == column_title::kPlugin ? "plugin" : header;
}

std::vector<std::string> CellsOf(const ResultList& list, ResultRow row) {
    std::vector<std::string> cells;
    for (int column = 1; column <= list.ColumnCount(); ++column)
        cells.emplace_back(list.ColumnText(row, column));
    return cells;
}

std::vector<std::string> HeadersOf(const ResultList& list) {
    std::vector<std::string> headers;
    for (int column = 1; column <= list.ColumnCount(); ++column)
        headers.push_back(list.Header(column));
    return headers;
}

void PrintTable(const ResultList& list) {
    Table table(HeadersOf(list), MaxColumnWidth());
    bool hasGreyedRows = false;
    for (std::size_t position = 1; position <= list.RowCount(); ++position) {
        const ResultRow row = list.RowAt(position);
        table.AddRow(CellsOf(list, row), IsGreyed(list, row));
        hasGreyedRows = hasGreyedRows || IsGreyed(list, row);
    }
    const bool hasColours = platform::ShowsColours(platform::Stream::Out);
    table.Print(std::cout, hasColours);
    if (hasGreyedRows && !hasColours)
        std::cout << "* not installed\n";
}

void PrintJson(const ResultList& list) {
    const std::vector<std::string> headers = HeadersOf(list);
    JsonList rows(std::cout);
    const std::size_t count = HoldsPlaceholder(list) ? 0 : list.RowCount();
    for (std::size_t position = 1; position <= count; ++position) {
        const ResultRow row = list.RowAt(position);
        const std::vector<std::string> cells = CellsOf(list, row);
        rows.BeginObject();
        for (std::size_t i = 0; i < cells.size(); ++i)
            rows.AddText(JsonName(headers[i], static_cast<int>(i) + 1), cells[i]);
        rows.AddFlag("greyed", IsGreyed(list, row));
    }
    rows.End();
}

/// As it is for a program to read, made harmless on a terminal.
void PrintCsv(const ResultList& list) {
    const std::string csv = ListAsCsv(list);
    if (!platform::IsTerminal(platform::Stream::Out)) {
        std::cout << csv;
        return;
    }
    std::string_view rest = csv;
    constexpr std::string_view lineEnd = "\r\n";
    for (std::size_t end = rest.find(lineEnd); end != std::string_view::npos;
         end = rest.find(lineEnd)) {
        std::cout << Printable(rest.substr(0, end)) << '\n';
        rest.remove_prefix(end + lineEnd.size());
    }
}

/// The same.
void PrintHtml(const ResultPane& pane, const std::string& title) {
    const std::string page =
        ListAsHtml(pane.lstSongs, SortedColumn(pane), title, pane.application.clock.Now());
    std::cout << (platform::IsTerminal(platform::Stream::Out) ? PrintableLines(page) : page);
}

}  // namespace

void PrintList(const ResultPane& pane, const std::string& title, ListFormat format) {
    switch (format) {
        case ListFormat::Table:
            return PrintTable(pane.lstSongs);
        case ListFormat::Csv:
            return PrintCsv(pane.lstSongs);
        case ListFormat::Json:
            return PrintJson(pane.lstSongs);
        case ListFormat::Html:
            return PrintHtml(pane, title);
    }
}

}  // namespace marlo::cli
