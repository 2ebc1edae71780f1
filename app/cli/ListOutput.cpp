#include "app/cli/ListOutput.h"

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "app/cli/CommandSupport.h"
#include "app/cli/JsonList.h"
#include "app/cli/Table.h"
#include "app/cli/TerminalText.h"
#include "platform/Terminal.h"
#include "reports/ListPage.h"
#include "reports/PluginReports.h"

namespace marlo::cli {

namespace {

/// What a column is called in JSON, whatever report it belongs to.
const char* JsonName(Column column) {
    switch (column) {
        case Column::Project:
            return "project";
        case Column::Modified:
            return "modified";
        case Column::Plugin:
            return "plugin";
        case Column::Type:
            return "type";
        case Column::Path:
            return "path";
        case Column::Status:
            return "state";
        case Column::Other:
            break;
    }
    return "";
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

/// Whether the user wants no colours of any program.
bool WantsNoColours() {
    const char* const unwanted = std::getenv("NO_COLOR");
    return unwanted != nullptr && *unwanted != '\0';
}

bool HasColours(Colours wanted) {
    using platform::Stream;
    switch (wanted) {
        case Colours::AsUsual:
            return !WantsNoColours() && platform::ShowsColours(Stream::Out);
        case Colours::Auto:
            return platform::ShowsColours(Stream::Out);
        case Colours::Always:
            return !platform::IsTerminal(Stream::Out) || platform::ObeysSequences(Stream::Out);
        case Colours::Never:
            break;
    }
    return false;
}

void PrintTable(const ResultList& list, Colours colours) {
    Table table(HeadersOf(list), MaxColumnWidth());
    bool hasGreyedRows = false;
    for (std::size_t position = 1; position <= list.RowCount(); ++position) {
        const ResultRow row = list.RowAt(position);
        table.AddRow(CellsOf(list, row), IsGreyed(list, row));
        hasGreyedRows = hasGreyedRows || IsGreyed(list, row);
    }
    const bool hasColours = HasColours(colours);
    table.Print(std::cout, hasColours);
    if (hasGreyedRows && !hasColours)
        std::cout << "* not installed\n";
}

void PrintJson(const ResultList& list) {
    JsonList rows(std::cout);
    const std::size_t count = HoldsPlaceholder(list) ? 0 : list.RowCount();
    for (std::size_t position = 1; position <= count; ++position) {
        const ResultRow row = list.RowAt(position);
        rows.BeginObject();
        for (int column = 1; column <= list.ColumnCount(); ++column)
            rows.AddText(JsonName(list.ColumnAt(column)), list.ColumnText(row, column));
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

void PrintPaths(const ResultList& list, bool endsWithNull) {
    const int column = std::max(list.IndexOf(Column::Project), list.IndexOf(Column::Path));
    if (column == 0 || HoldsPlaceholder(list))
        return;
    const bool isForPerson = platform::IsTerminal(platform::Stream::Out);
    const char end = endsWithNull ? '\0' : '\n';
    std::unordered_set<std::string_view> printed;
    for (std::size_t position = 1; position <= list.RowCount(); ++position) {
        const std::string_view path = list.ColumnText(list.RowAt(position), column);
        if (path.empty() || path == kNotInstalled || !printed.insert(path).second)
            continue;
        if (isForPerson)
            std::cout << Printable(path) << end;
        else
            std::cout << path << end;
    }
}

}  // namespace

void PrintList(const ResultPane& pane, const std::string& title, const ListStyle& style) {
    switch (style.format) {
        case ListFormat::Table:
            return PrintTable(pane.lstSongs, style.colours);
        case ListFormat::Csv:
            return PrintCsv(pane.lstSongs);
        case ListFormat::Json:
            return PrintJson(pane.lstSongs);
        case ListFormat::Html:
            return PrintHtml(pane, title);
        case ListFormat::Paths:
            return PrintPaths(pane.lstSongs, style.endsWithNull);
    }
}

}  // namespace marlo::cli
