#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/Application.h"
#include "core/MainWindow.h"
#include "reports/ResultSearch.h"

namespace marlo::test {

/// A row as the plain reports below add it.
struct LiteralRow {
    std::string key;
    std::vector<std::string> cells;  ///< the text first
    bool isGreyed = false;

    bool operator==(const LiteralRow&) const = default;
};

/// The reports and the search in their plainest form, which reads the second file anew for each
/// row and compares each key with every row: slow, and what the program's own have to agree with.
/// A line that is malformed is logged the first time only that it is read from a file.
class LiteralReports {
  public:
    /// @param columnCount how many columns the list has.
    LiteralReports(const Application& application, MainWindow& window, int columnCount)
        : application_(application), window_(window), columnCount_(columnCount) {}

    void ShowAllPlugins(int typeColumn, int pathColumn);
    void ShowUsedPlugins(int typeColumn, int pathColumn, int statusColumn);
    void ShowUnusedPlugins(int typeColumn, int pathColumn);
    void ShowUninstalledPlugins(int typeColumn, int statusColumn);

    void SearchResultFiles(const SearchPane& search, int typeColumn, int statusColumn);

    const std::vector<LiteralRow>& Rows() const { return rows_; }

  private:
    using Fields = std::vector<std::string>;

    std::vector<std::string> Lines(const std::string& name) const;
    Fields Split(const std::string& line, bool isFirstReading, int fieldCount = 3) const;
    bool PluginIsInstalled(const std::string& name);
    bool HasKey(const std::string& key) const;
    LiteralRow& Add(const std::string& key, const std::string& text);
    void Set(LiteralRow& row, int subItem, const std::string& text) const;
    void AddPlaceholder(const std::string& text);
    bool Ignores(std::int16_t record) const;
    template <class Body>
    void Run(const char* procedure, Body body);

    const Application& application_;
    MainWindow& window_;
    int columnCount_;
    std::vector<LiteralRow> rows_;
    std::size_t linesRead_ = 0;  ///< of the second file, at the most
};

}  // namespace marlo::test
