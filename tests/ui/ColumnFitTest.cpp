#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "core/Text.h"
#include "ui/ColumnFit.h"

namespace marlo {
namespace {

/// A font in which a character is as wide as the last digit of its code, and one more.
class FakeMeasure final : public TextMeasure {
  public:
    int WidthOf(const std::string& text) override {
        ++calls;
        int width = 0;
        for (const char32_t character : Decode(text))
            width += 1 + static_cast<int>(character % 10);
        return width;
    }

    int calls = 0;
};

class ColumnFitTest : public testing::Test {
  protected:
    ColumnFitTest() {
        list.AddColumn("Plugin");
        list.AddColumn("Path");
    }

    void Add(const std::string& text, const std::string& path) {
        list.SetSubItem(list.AddRow(text + path, text), 1, path);
    }

    std::vector<int> Widths() { return WidestCells(list, measure); }

    ResultList list;
    FakeMeasure measure;
};

TEST_F(ColumnFitTest, AListWithoutRowsHasColumnsWithoutWidth) {
    EXPECT_EQ(Widths(), (std::vector<int>{0, 0}));
    EXPECT_EQ(WidestCells(ResultList(), measure), std::vector<int>());
}

TEST_F(ColumnFitTest, EachColumnIsAsWideAsItsWidestCell) {
    Add("dd", "x");
    Add("d", "dddd");
    EXPECT_EQ(Widths(), (std::vector<int>{2, 4}));
}

TEST_F(ColumnFitTest, TheWidestCellNeedNotBeTheLongest) {
    Add("nnnnn", "");  // 1 each
    Add("mm", "");     // 10 each
    EXPECT_EQ(Widths(), (std::vector<int>{20, 0}));
}

TEST_F(ColumnFitTest, CellsThatAreNotAsciiAreMeasuredAsTheyAreShown) {
    Add("R\xE9verb", "曲");
    FakeMeasure other;
    EXPECT_EQ(Widths(), (std::vector<int>{other.WidthOf("Réverb"), other.WidthOf("曲")}));
}

TEST_F(ColumnFitTest, TheLastOfManyRowsCountsAndFewAreMeasured) {
    for (int i = 0; i < 10000; ++i)
        Add("row " + std::to_string(i), "d");
    Add("a cell that is wider than all of those before it", "d");
    FakeMeasure other;
    EXPECT_EQ(Widths().front(), other.WidthOf("a cell that is wider than all of those before it"));
    EXPECT_LT(measure.calls, 100);
}

}  // namespace
}  // namespace marlo
