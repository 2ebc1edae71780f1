#include "reports/ListPage.h"

#include <algorithm>
#include <iomanip>
#include <sstream>
#include <string_view>

#include "core/Text.h"
#include "reports/ResultPane.h"

namespace marlo {

namespace {

constexpr const char* kStyle = R"(
:root { color-scheme: light; }
body { margin: 2rem; background: #fff; color: #1c2733;
  font: 15px/1.45 system-ui, "Segoe UI", "Noto Sans", sans-serif; }
h1 { margin: 0 0 .25rem; font-size: 1.5rem; font-weight: 600; }
p { margin: 0 0 1.25rem; color: #56616d; }
table { border-collapse: collapse; min-width: 40rem; max-width: 100%; }
th { position: sticky; top: 0; padding: 0; background: #fff; border-bottom: 2px solid #9fb2dd;
  text-align: left; white-space: nowrap; }
th button { width: 100%; padding: .5rem 1.6rem .5rem .75rem; border: 0; background: none;
  color: inherit; font: inherit; font-weight: 600; text-align: left; cursor: pointer; }
th button:hover { background: #eff3ff; }
th button:focus-visible { outline: 2px solid #2f5bd0; outline-offset: -2px; }
th[aria-sort=ascending] button::after { content: " \25B2"; color: #2f5bd0; }
th[aria-sort=descending] button::after { content: " \25BC"; color: #2f5bd0; }
td { padding: .3rem .75rem; unicode-bidi: isolate; overflow-wrap: anywhere; }
tbody tr:nth-child(even) { background: #eff3ff; }
tr.greyed { color: #687078; }
@media print {
  body { margin: 0; font-size: 10pt; }
  th { position: static; }
  th button::after { content: none !important; }
  tr { break-inside: avoid; }
  tbody tr { print-color-adjust: exact; -webkit-print-color-adjust: exact; }
}
)";

constexpr const char* kScript = R"(
const table = document.querySelector('table');
const date = /^(\d+)\/(\d+)\/(\d+) (\d+):(\d+):(\d+) (AM|PM)$/;
function sortKey(cell) {
  const text = cell.textContent;
  const parts = date.exec(text);
  if (!parts) return text.toUpperCase();
  const hour = parts[4] % 12 + (parts[7] === 'PM' ? 12 : 0);
  return [parts[3], parts[1], parts[2], hour, parts[5], parts[6]]
    .map(part => String(part).padStart(4, '0')).join('');
}
function sortBy(header) {
  const rows = [...table.tBodies[0].rows].map(row => [sortKey(row.cells[header.cellIndex]), row]);
  const descending = header.getAttribute('aria-sort') === 'ascending';
  rows.sort(([a], [b]) => (a < b ? -1 : a > b ? 1 : 0) * (descending ? -1 : 1));
  table.tBodies[0].append(...rows.map(([, row]) => row));
  for (const other of table.tHead.rows[0].cells) other.removeAttribute('aria-sort');
  header.setAttribute('aria-sort', descending ? 'descending' : 'ascending');
}
table.tHead.addEventListener('click', event => {
  const header = event.target.closest('th');
  if (header) sortBy(header);
});
)";

std::string CsvField(std::string_view field) {
    std::string quoted = "\"";
    for (const char c : field)
        quoted.append(c == '"' ? 2 : 1, c);
    return quoted += '"';
}

/// A character as HTML shows it. Control characters have pictures of their own.
std::string HtmlCharacter(char32_t character) {
    constexpr char32_t controlPictures = 0x2400;
    constexpr char32_t deletePicture = 0x2421;
    constexpr char32_t replacement = 0xFFFD;
    const std::u32string_view markup = U"&<>\"'";
    if (markup.find(character) != std::u32string_view::npos)
        return "&#" + std::to_string(static_cast<unsigned>(character)) + ";";
    if (character < 0x20)
        character += controlPictures;
    else if (character == 0x7F)
        character = deletePicture;
    else if (character > 0x7F && character < 0xA0)
        character = replacement;
    return EncodeUtf8({&character, 1});
}

std::string Html(std::string_view field) {
    std::string html;
    for (const char32_t character : Decode(field))
        html += HtmlCharacter(character);
    return html;
}

/// A cell's text, which may be broken behind the names of a path.
std::string HtmlCell(std::string_view field) {
    std::string html;
    for (const char32_t character : Decode(field)) {
        html += HtmlCharacter(character);
        if (character == U'/' || character == U'\\')
            html += "<wbr>";
    }
    return html;
}

/// "9 rows, 4 of them greyed: not installed".
std::string Counts(const ResultList& list) {
    const std::size_t rows = HoldsPlaceholder(list) ? 0 : list.RowCount();
    std::size_t greyed = 0;
    for (std::size_t position = 1; position <= rows; ++position)
        greyed += IsGreyed(list, list.RowAt(position)) ? 1 : 0;
    std::ostringstream counts;
    counts << rows << (rows == 1 ? " row" : " rows");
    if (greyed > 0)
        counts << ", " << greyed << " of them greyed: not installed";
    return counts.str();
}

/// Keeps the columns of short texts from being broken to make room for the others.
void WriteStyleOfShortColumns(std::ostream& page, const ResultList& list) {
    for (int column = 1; column <= list.ColumnCount(); ++column) {
        const Column content = list.ColumnAt(column);
        if (content == Column::Modified || content == Column::Type || content == Column::Status)
            page << "td:nth-child(" << column << ") { white-space: nowrap; }\n";
    }
}

void WriteHead(std::ostream& page, const ResultList& list, const std::string& title) {
    page << "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
            "<meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'; "
            "style-src 'unsafe-inline'; script-src 'unsafe-inline'\">\n"
            "<meta name=\"viewport\" content=\"width=device-width\">\n<title>"
         << title << "</title>\n<style>" << kStyle;
    WriteStyleOfShortColumns(page, list);
    page << "</style>\n</head>\n";
}

void WriteHeaders(std::ostream& page, const ResultList& list, int sortedColumn) {
    const std::string order =
        list.Order() == SortOrder::Ascending ? "\"ascending\"" : "\"descending\"";
    page << "<thead><tr>";
    for (int column = 1; column <= list.ColumnCount(); ++column) {
        page << "<th scope=\"col\"";
        if (column == sortedColumn)
            page << " aria-sort=" << order;
        page << "><button type=\"button\">" << Html(list.Header(column)) << "</button></th>";
    }
    page << "</tr></thead>\n";
}

void WriteRows(std::ostream& page, const ResultList& list) {
    page << "<tbody>\n";
    for (std::size_t position = 1; position <= list.RowCount(); ++position) {
        const ResultRow row = list.RowAt(position);
        page << (IsGreyed(list, row) ? "<tr class=\"greyed\">" : "<tr>");
        for (int column = 1; column <= list.ColumnCount(); ++column)
            page << "<td>" << HtmlCell(list.ColumnText(row, column)) << "</td>";
        page << "</tr>\n";
    }
    page << "</tbody>\n";
}

}  // namespace

std::string ListAsCsv(const ResultList& list) {
    std::string csv;
    for (int column = 1; column <= list.ColumnCount(); ++column)
        csv.append(CsvField(list.Header(column))).append(",");
    csv += "\"Greyed\"\r\n";
    if (HoldsPlaceholder(list))
        return csv;
    for (std::size_t position = 1; position <= list.RowCount(); ++position) {
        const ResultRow row = list.RowAt(position);
        for (int column = 1; column <= list.ColumnCount(); ++column)
            csv.append(CsvField(list.ColumnText(row, column))).append(",");
        csv += IsGreyed(list, row) ? "\"yes\"\r\n" : "\"no\"\r\n";
    }
    return csv;
}

std::string ListAsHtml(const ResultList& list, int sortedColumn, const std::string& title,
                       const std::tm& moment) {
    std::ostringstream page;
    const std::string escapedTitle = Html(title);
    WriteHead(page, list, escapedTitle);
    page << "<body>\n<h1>" << escapedTitle << "</h1>\n<p>"
         << std::put_time(&moment, "%Y-%m-%d %H:%M") << " &middot; " << Counts(list)
         << "</p>\n<table>\n";
    WriteHeaders(page, list, sortedColumn);
    WriteRows(page, list);
    page << "</table>\n<script>" << kScript << "</script>\n</body>\n</html>\n";
    return page.str();
}

std::string RowsAsText(const ResultList& list, const std::vector<std::size_t>& positions) {
    std::string text;
    for (const std::size_t position : positions) {
        const ResultRow row = list.RowAt(position);
        for (int column = 1; column <= list.ColumnCount(); ++column) {
            std::string cell = DecodeToUtf8(list.ColumnText(row, column));
            std::replace_if(
                cell.begin(), cell.end(),
                [](char c) { return c == '\t' || c == '\n' || c == '\r'; }, ' ');
            text.append(column == 1 ? "" : "\t").append(cell);
        }
        text += '\n';
    }
    return text;
}

}  // namespace marlo
