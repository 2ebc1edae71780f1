#pragma once

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace marlo::cli {

/// A table for a person to read. Columns are aligned by display width, but for texts of more than
/// 200 cells, behind which a row goes on where it has come to; texts are made harmless (see
/// `Printable`).
class Table {
  public:
    /// @param maxColumnWidth in cells; wider texts are cut to it (see `FitToWidth`), except in the
    ///        last column.
    Table(const std::vector<std::string>& headers, int maxColumnWidth);

    /// Adds a row of as many fields as there are headers.
    void AddRow(const std::vector<std::string>& fields, bool isDimmed = false);

    /// @param hasColours whether dimmed rows can be shown so; else they have a "*" in front.
    void Print(std::ostream& out, bool hasColours = false) const;

  private:
    struct Row {
        std::vector<std::string> fields;
        bool isDimmed = false;
    };

    std::vector<int> Widths() const;
    std::string_view GutterOf(const Row& row, bool hasColours) const;

    int maxColumnWidth_;
    std::vector<Row> rows_;  // the headers first
    bool hasDimmedRows_ = false;
};

}  // namespace marlo::cli
