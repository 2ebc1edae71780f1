#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "core/TextTable.h"

namespace marlo {
namespace {

TEST(TextTableTest, TextsAreNumberedAsTheyWereAdded) {
    TextTable table;
    EXPECT_EQ(table.Find("a"), std::nullopt);
    EXPECT_TRUE(table.Add("a"));
    EXPECT_TRUE(table.Add(""));
    EXPECT_TRUE(table.Add(std::string("a\0", 2)));
    EXPECT_FALSE(table.Add("a"));
    EXPECT_EQ(table.Size(), 3U);
    EXPECT_EQ(table.Find("a"), 0U);
    EXPECT_EQ(table.Find(""), 1U);
    EXPECT_EQ(table.Find("A"), std::nullopt);
    EXPECT_EQ(table[2], std::string_view("a\0", 2));
}

TEST(TextTableTest, ManyTextsAreFound) {
    constexpr std::size_t count = 100'000;
    TextTable table;
    for (std::size_t i = 0; i < count; ++i)
        EXPECT_TRUE(table.Add("text " + std::to_string(i)));
    for (std::size_t i = 0; i < count; ++i) {
        const std::string text = "text " + std::to_string(i);
        ASSERT_EQ(table.Find(text), i);
        ASSERT_FALSE(table.Add(text));
        ASSERT_EQ(table[i], text);
    }
    EXPECT_EQ(table.Find("text 100000"), std::nullopt);
}

TEST(TextTableTest, ATextLargerThanWhatIsAllocatedAtOnceIsKeptWhole) {
    TextTable table;
    const std::string large(1'000'000, 'x');
    table.Add("small");
    table.Add(large);
    table.Add("another");
    EXPECT_EQ(table[1], large);
    EXPECT_EQ(table.Find(large), 1U);
    EXPECT_EQ(table.Find("another"), 2U);
}

TEST(TextArenaTest, MemoryIsUsedAgainAfterClearing) {
    TextArena arena;
    const std::string large(1'000'000, 'x');
    const char* const first = arena.Copy("first").data();
    arena.Copy(large);
    arena.Clear();
    std::vector<std::string_view> copies;
    for (int i = 0; i < 100'000; ++i)
        copies.push_back(arena.Copy(std::to_string(i)));
    EXPECT_EQ(copies.front().data(), first);
    for (int i = 0; i < 100'000; ++i)
        ASSERT_EQ(copies[static_cast<std::size_t>(i)], std::to_string(i));
}

TEST(TextArenaTest, ACopyMayBeReplacedByAPartOfItself) {
    TextArena arena;
    const std::string_view copy = arena.Copy("abcdef");
    TextArena::Replace(copy.data(), copy.substr(2));
    EXPECT_EQ(copy, "cdefef");
}

TEST(TextTableTest, AClearedTableForgetsItsTextsAndTakesOthers) {
    TextTable table;
    for (int round = 0; round < 3; ++round) {
        EXPECT_EQ(table.Find("text 7"), std::nullopt);
        for (int i = 0; i < 1000; ++i)
            EXPECT_TRUE(table.Add("text " + std::to_string(i)));
        EXPECT_EQ(table.Find("text 7"), 7U);
        table.Clear();
        EXPECT_EQ(table.Size(), 0U);
    }
}

}  // namespace
}  // namespace marlo
