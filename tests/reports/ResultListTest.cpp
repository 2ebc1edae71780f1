#include <utility>

#include <gtest/gtest.h>

#include "reports/ResultList.h"
#include "tests/support/FailureOf.h"
#include "tests/support/ReportTest.h"

namespace marlo {
namespace {

using test::FailureOf;
using test::Texts;

class ResultListTest : public testing::Test {
  protected:
    /// Adds rows whose keys are their texts.
    void Add(const Texts& texts) {
        for (const std::string& text : texts)
            list.AddRow(text, text);
    }

    Texts Shown() const {
        Texts texts;
        for (std::size_t position = 1; position <= list.RowCount(); ++position)
            texts.emplace_back(list.Text(list.RowAt(position)));
        return texts;
    }

    /// The texts in ascending order of the first column.
    Texts Sorted(const Texts& texts) {
        Add(texts);
        list.SetSorted(true);
        return Shown();
    }

    ResultList list;
};

TEST_F(ResultListTest, ColumnsAreCountedFromOneAndRemovedFromTheFront) {
    EXPECT_EQ(list.AddColumn("A"), 1);
    EXPECT_EQ(list.AddColumn("B"), 2);
    EXPECT_EQ(list.AddColumn("C"), 3);
    list.RemoveColumn(1);
    EXPECT_EQ(test::HeadersOf(list), (Texts{"B", "C"}));
}

TEST_F(ResultListTest, AColumnThatDoesNotExistIsSubscriptOutOfRange) {
    list.AddColumn("A");
    for (const int column : {-1, 0, 2}) {
        EXPECT_EQ(FailureOf([&] { list.Header(column); }), ErrorNumber::SubscriptOutOfRange);
        EXPECT_EQ(FailureOf([&] { list.RemoveColumn(column); }), ErrorNumber::SubscriptOutOfRange);
    }
}

TEST_F(ResultListTest, APositionThatDoesNotExistIsSubscriptOutOfRange) {
    Add({"a"});
    EXPECT_EQ(FailureOf([&] { list.RowAt(0); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(FailureOf([&] { list.RowAt(2); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(FailureOf([&] { list.Select(2); }), ErrorNumber::SubscriptOutOfRange);
}

TEST_F(ResultListTest, AKeyThatIsThereAlreadyIsNotUnique) {
    list.AddRow("key", "first");
    EXPECT_EQ(FailureOf([&] { list.AddRow("key", "second"); }), ErrorNumber::KeyNotUnique);
    EXPECT_EQ(static_cast<int>(ErrorNumber::KeyNotUnique), 35602);
    EXPECT_FALSE(list.AddRowUnlessThere("key", "third"));
    EXPECT_EQ(Shown(), Texts{"first"});
}

TEST_F(ResultListTest, KeysAreComparedExactly) {
    Add({"key", "Key", "key ", "", std::string("key\0", 4)});
    EXPECT_EQ(list.RowCount(), 5U);
    EXPECT_FALSE(list.AddRowUnlessThere("", "")) << "no text is a key too";
    EXPECT_EQ(list.Key(list.RowAt(2)), "Key");
}

TEST_F(ResultListTest, AKeyMayComeAgainAfterTheRowsWereCleared) {
    Add({"a", "b"});
    list.Select(1);
    list.ClearRows();
    EXPECT_EQ(list.RowCount(), 0U);
    EXPECT_EQ(FailureOf([&] { list.SelectedRow(); }), ErrorNumber::ObjectNotSet);
    Add({"b"});
    EXPECT_EQ(Shown(), Texts{"b"});
}

TEST_F(ResultListTest, SubItemsAreThoseBehindTheFirstColumn) {
    list.AddColumn("A");
    list.AddColumn("B");
    const ResultRow row = list.AddRow("key", "text");
    list.SetSubItem(row, 1, "sub");
    EXPECT_EQ(list.SubItem(row, 1), "sub");
    EXPECT_EQ(list.ColumnText(row, 1), "text");
    EXPECT_EQ(list.ColumnText(row, 2), "sub");
    for (const int column : {-1, 0, 3})
        EXPECT_EQ(FailureOf([&] { list.ColumnText(row, column); }),
                  ErrorNumber::SubscriptOutOfRange);
    for (const int subItem : {-1, 0, 2}) {
        EXPECT_EQ(FailureOf([&] { list.SubItem(row, subItem); }), ErrorNumber::SubscriptOutOfRange);
        EXPECT_EQ(FailureOf([&] { list.SetSubItem(row, subItem, ""); }),
                  ErrorNumber::SubscriptOutOfRange);
        EXPECT_EQ(FailureOf([&] { list.SetSubItemColour(row, subItem, TextColour::Greyed); }),
                  ErrorNumber::SubscriptOutOfRange);
    }
}

TEST_F(ResultListTest, ASubItemThatWasNeverSetIsEmptyAndOfTheNormalColour) {
    list.AddColumn("A");
    list.AddColumn("B");
    const ResultRow row = list.AddRow("key", "text");
    EXPECT_EQ(list.SubItem(row, 1), "");
    EXPECT_EQ(list.SubItemColour(row, 1), TextColour::Normal);
    EXPECT_EQ(list.Colour(row), TextColour::Normal);
    EXPECT_EQ(list.SmallIcon(row), 0);
}

TEST_F(ResultListTest, AColumnThatIsAddedLaterGivesEveryRowACell) {
    list.AddColumn("A");
    Add({"a", "b"});
    list.AddColumn("B");
    list.SetSubItem(list.RowAt(2), 1, "sub");
    list.AddColumn("C");
    EXPECT_EQ(Shown(), (Texts{"a", "b"}));
    EXPECT_EQ(list.SubItem(list.RowAt(1), 1), "");
    EXPECT_EQ(list.SubItem(list.RowAt(2), 1), "sub");
    EXPECT_EQ(list.SubItem(list.RowAt(2), 2), "");
}

TEST_F(ResultListTest, ACellMayBeReplaced) {
    list.AddColumn("A");
    list.AddColumn("B");
    const ResultRow row = list.AddRow("key", "text");
    list.SetSubItem(row, 1, "first");
    list.SetSubItem(row, 1, list.SubItem(row, 1).substr(1));
    EXPECT_EQ(list.SubItem(row, 1), "irst");
    list.SetSubItem(row, 1, "");
    EXPECT_EQ(list.SubItem(row, 1), "");
}

TEST_F(ResultListTest, TextsStayWhateverTheCallerDoesWithThem) {
    std::string text(300'000, 'x');
    list.AddRow(text, text);
    text[0] = 'y';
    Add({"b"});
    EXPECT_EQ(list.Text(list.RowAt(1)), std::string(300'000, 'x'));
}

TEST_F(ResultListTest, RowsStayInTheirOrderWhileTheListIsNotSorted) {
    Add({"b", "a", "c"});
    EXPECT_EQ(Shown(), (Texts{"b", "a", "c"}));
}

TEST_F(ResultListTest, CaseDoesNotCountUntilTextsAreTheSameOtherwise) {
    EXPECT_EQ(Sorted({"b", "a", "B", "C", "A", "c"}), (Texts{"A", "a", "B", "b", "C", "c"}));
}

TEST_F(ResultListTest, TextsAreOrderedByTheirCharactersInEitherEncoding) {
    EXPECT_EQ(Sorted({"Z", "\xE9", "É", "e", "\xFF", "Ÿ"}),
              (Texts{"e", "Z", "É", "\xE9", "\xFF", "Ÿ"}))
        << "the small e with acute and y with diaeresis are in Windows-1252";
}

TEST_F(ResultListTest, NumbersAreOrderedAsTexts) {
    EXPECT_EQ(Sorted({"9", "10", "1"}), (Texts{"1", "10", "9"}));
}

TEST_F(ResultListTest, TextsThatBeginAlikeAreOrderedByTheRest) {
    EXPECT_EQ(Sorted({"Long enough b", "Long enough", "Long enougha", "Long eno"}),
              (Texts{"Long eno", "Long enough", "Long enough b", "Long enougha"}));
    list.ClearRows();
    EXPECT_EQ(Sorted({std::string("a\0b", 3), "a", std::string("a\0", 2)}),
              (Texts{"a", std::string("a\0", 2), std::string("a\0b", 3)}));
}

TEST_F(ResultListTest, RowsWithTheSameTextKeepTheirOrderAlsoTurnedRound) {
    list.AddColumn("Name");
    list.AddColumn("Type");
    for (const std::string name : {"c", "a", "d", "b"})
        list.SetSubItem(list.AddRow(name, name), 1, name == "d" ? "X" : "VST");
    list.SetSortKey(1);
    list.SetSorted(true);
    EXPECT_EQ(Shown(), (Texts{"c", "a", "b", "d"}));
    list.SetOrder(SortOrder::Descending);
    EXPECT_EQ(Shown(), (Texts{"d", "c", "a", "b"}));
}

TEST_F(ResultListTest, RowsAddedWhileTheListIsSortedTakeTheirPlace) {
    Add({"b", "d"});
    list.SetSorted(true);
    Add({"c", "a"});
    EXPECT_EQ(Shown(), (Texts{"a", "b", "c", "d"}));
}

TEST_F(ResultListTest, RowsAddedAfterSortingWasSwitchedOffStayBehindTheOthers) {
    Add({"b", "d"});
    list.SetSorted(true);
    Add({"c"});
    list.SetSorted(false);
    Add({"a"});
    EXPECT_EQ(Shown(), (Texts{"b", "c", "d", "a"})) << "c was added while the list was sorted";
}

TEST_F(ResultListTest, CellsThatChangeAfterSortingMoveNoRow) {
    list.AddColumn("Name");
    list.AddColumn("Date");
    const ResultRow first = list.AddRow("a", "a");
    list.SetSubItem(first, 1, "a");
    list.SetSubItem(list.AddRow("b", "b"), 1, "b");
    list.SetSortKey(1);
    list.SetSorted(true);
    list.SetSubItem(first, 1, "z");
    EXPECT_EQ(Shown(), (Texts{"a", "b"}));
    list.SetSorted(false);
    EXPECT_EQ(Shown(), (Texts{"a", "b"}));
}

TEST_F(ResultListTest, SwitchingSortingOnOrdersTheRowsByTheirCellsAsTheyAreThen) {
    list.AddColumn("Name");
    list.AddColumn("Date");
    const ResultRow first = list.AddRow("a", "a");
    list.SetSubItem(first, 1, "1");
    list.SetSubItem(list.AddRow("b", "b"), 1, "2");
    list.SetSortKey(1);
    list.SetSorted(true);
    list.SetSubItem(first, 1, "3");
    list.SetSorted(true);
    EXPECT_EQ(Shown(), (Texts{"b", "a"})) << "also where it was on";
    list.SetSubItem(first, 1, "1");
    list.SetSorted(false);
    list.SetSorted(true);
    EXPECT_EQ(Shown(), (Texts{"a", "b"}));
}

TEST_F(ResultListTest, AnotherKeyOrOrderOfASortedListOrdersItAtOnce) {
    list.AddColumn("Name");
    list.AddColumn("Type");
    for (const std::string name : {"a1", "b2", "c1", "d2"})
        list.SetSubItem(list.AddRow(name, name), 1, name.substr(1));
    list.SetSorted(true);
    list.SetOrder(SortOrder::Descending);
    list.SetSortKey(1);
    EXPECT_EQ(Shown(), (Texts{"d2", "b2", "c1", "a1"}))
        << "rows of one type in the order in which they were, though nobody looked";
}

TEST_F(ResultListTest, ACellThatIsSetAgainMayBeShorterOrLonger) {
    list.AddColumn("A");
    list.AddColumn("B");
    const ResultRow row = list.AddRow("key", "text");
    const std::string longText(70'000, 'x');
    for (const std::string& text : {std::string("first"), longText, std::string("second"),
                                    std::string(), std::string("third"), longText}) {
        list.SetSubItem(row, 1, text);
        EXPECT_EQ(list.SubItem(row, 1), text);
    }
    EXPECT_EQ(list.Text(row), "text");
    EXPECT_EQ(list.Key(row), "key");
}

TEST_F(ResultListTest, ASortKeyWithoutAColumnChangesNothing) {
    Add({"b", "a"});
    for (const int key : {-1, 1, 7}) {
        list.SetSortKey(key);
        list.SetSorted(true);
        EXPECT_EQ(Shown(), (Texts{"b", "a"}));
        list.SetSorted(false);
    }
}

TEST_F(ResultListTest, TheSelectedRowStaysSelectedWhenTheOrderChanges) {
    Add({"b", "a"});
    list.Select(1);
    list.SetSorted(true);
    EXPECT_EQ(list.Text(list.SelectedRow()), "b");
    list.SelectNone();
    EXPECT_EQ(FailureOf([&] { list.SelectedRow(); }), ErrorNumber::ObjectNotSet);
}

TEST_F(ResultListTest, ManyRowsAreFoundByTheirKeysAndSorted) {
    constexpr int count = 20'000;
    for (int i = 0; i < count; ++i) {
        const std::string key = std::to_string((i * 7919) % count);
        list.AddRow(key, key);
    }
    for (int i = 0; i < count; ++i)
        EXPECT_FALSE(list.AddRowUnlessThere(std::to_string(i), ""));
    list.SetSorted(true);
    const Texts shown = Shown();
    EXPECT_EQ(shown.size(), static_cast<std::size_t>(count));
    EXPECT_TRUE(std::is_sorted(shown.begin(), shown.end()));
}

TEST_F(ResultListTest, TheSelectedPositionFollowsTheOrder) {
    Add({"b", "a"});
    EXPECT_EQ(list.SelectedPosition(), 0U);
    list.Select(1);
    EXPECT_EQ(list.SelectedPosition(), 1U);
    list.SetSorted(true);
    EXPECT_EQ(list.SelectedPosition(), 2U);
}

TEST_F(ResultListTest, AListThatTakesAnothersPlaceHasAnotherRevision) {
    list.AddColumn("A");
    Add({"a", "b"});
    const std::size_t before = list.Revision();
    ResultList other;
    other.AddColumn("A");
    other.AddRow("b", "b");
    list = std::move(other);
    list.AddRow("a longer one", "a longer one");
    EXPECT_NE(list.Revision(), before);
}

TEST_F(ResultListTest, TheRevisionChangesWithWhateverIsShown) {
    std::size_t last = list.Revision();
    const auto hasChanged = [&] { return std::exchange(last, list.Revision()) != list.Revision(); };
    list.AddColumn("A");
    EXPECT_TRUE(hasChanged());
    list.AddColumn("B");
    EXPECT_TRUE(hasChanged());
    const ResultRow row = list.AddRow("a", "a");
    EXPECT_TRUE(hasChanged());
    list.SetSubItem(row, 1, "b");
    EXPECT_TRUE(hasChanged());
    list.SetColour(row, TextColour::Greyed);
    EXPECT_TRUE(hasChanged());
    list.SetSubItemColour(row, 1, TextColour::Greyed);
    EXPECT_TRUE(hasChanged());
    list.SetOrder(SortOrder::Descending);
    EXPECT_TRUE(hasChanged());
    list.SetSorted(true);
    EXPECT_TRUE(hasChanged());
    list.SetSortKey(1);
    EXPECT_TRUE(hasChanged());
    list.RemoveColumn(1);
    EXPECT_TRUE(hasChanged());
    list.ClearRows();
    EXPECT_TRUE(hasChanged());
    list.SelectNone();
    list.SetVisible(false);
    EXPECT_FALSE(hasChanged());
}

}  // namespace
}  // namespace marlo
