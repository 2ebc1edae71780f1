#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/Records.h"
#include "core/Settings.h"
#include "reports/ResultPane.h"
#include "tests/support/ApplicationTest.h"

namespace marlo::test {

using Texts = std::vector<std::string>;

/// What a row of the list shows.
struct ShownRow {
    Texts cells;
    bool isGreyed = false;

    bool operator==(const ShownRow&) const = default;
};

using ShownRows = std::vector<ShownRow>;

/// Prints a row for a failed test.
void PrintTo(const ShownRow& row, std::ostream* out);

/// The headers of a list's columns.
Texts HeadersOf(const ResultList& list);

/// What a list shows, from the top. A row is greyed when all of its cells are; fails the test for a
/// row that is greyed in part, or has another icon than the usual one.
ShownRows RowsOf(const ResultList& list);

/// The texts in the first column, from the top.
Texts NamesOf(const ResultList& list);

/// A test with result files and the list that shows them.
class ReportTest : public ApplicationTest {
  protected:
    /// Writes a result file, with each line's fields in quotes.
    void WriteRecords(const std::string& name, const std::vector<Texts>& records) const;
    void WriteInstalled(const std::vector<Texts>& records) const {
        WriteRecords("installedplugins.csv", records);
    }
    void WriteUsed(const std::vector<Texts>& records) const { WriteRecords("tln.csv", records); }

    void IgnoreDirectX() const { WriteSetting(application, setting::kIgnoreDirectX, "1"); }
    void IgnoreOff() const { WriteSetting(application, setting::kIgnoreOff, "1"); }

    void AddColumns(const Texts& headers);

    Texts Headers() const { return HeadersOf(pane.lstSongs); }
    ShownRows Rows() const { return RowsOf(pane.lstSongs); }
    Texts Names() const { return NamesOf(pane.lstSongs); }

    static const Texts kUnexpected;

    ResultPane pane{application, window};
};

}  // namespace marlo::test
