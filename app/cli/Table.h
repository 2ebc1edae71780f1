#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace marlo::cli {

/// A table for a person to read. Columns are aligned by display width; texts are made harmless
/// (see `Printable`). A text wider than 60 cells is cut short, except in the last column.
class Table {
  public:
    explicit Table(const std::vector<std::string>& headers);

    /// Adds a row of as many fields as there are headers.
    void AddRow(const std::vector<std::string>& fields);

    void Print(std::ostream& out) const;

  private:
    std::vector<std::vector<std::string>> rows_;  // the headers first
};

}  // namespace marlo::cli
