#include <gtest/gtest.h>

#include "core/RunTimeError.h"
#include "scan/SearchLists.h"
#include "tests/support/PluginUse.h"

namespace marlo {
namespace {

TEST(TextListTest, EntriesCountFrom1) {
    TextList list;
    EXPECT_EQ(list.UpperBound(), 0U);
    list.Append("a");
    list.Append("b");
    EXPECT_EQ(list.UpperBound(), 2U);
    EXPECT_EQ(list[1], "a");
    EXPECT_EQ(list[2], "b");
}

TEST(TextListTest, AnIndexOutsideTheListIsOutOfRange) {
    TextList list;
    list.Append("a");
    for (const std::size_t index : {0U, 2U}) {
        try {
            EXPECT_EQ(list[index], "never");
            ADD_FAILURE() << index;
        } catch (const RunTimeError& failure) {
            EXPECT_EQ(failure.Number(), ErrorNumber::SubscriptOutOfRange);
        }
    }
}

class MergeStateTest : public testing::Test {
  protected:
    PluginState Merge(std::string_view key, std::string_view state) {
        return MergeState(keys, states, key, state);
    }

    KeyList keys;
    StateList states;
};

TEST_F(MergeStateTest, AnIndexOutsideTheListsIsOutOfRange) {
    Merge("a", kOn);
    for (const std::size_t index : {0U, 2U}) {
        EXPECT_THROW(keys[index], RunTimeError);
        EXPECT_THROW(states[index], RunTimeError);
    }
}

TEST_F(MergeStateTest, OnStaysOnAndOffTurnsOn) {
    Merge("a", kOff);
    Merge("b", kOn);
    EXPECT_EQ(Merge("a", kOn).state, kOn);
    EXPECT_EQ(Merge("b", kOff).state, kOn);
    EXPECT_EQ(keys.UpperBound(), 2U);
    EXPECT_EQ(states.UpperBound(), 2U);
    EXPECT_EQ(keys[1], "a");
    EXPECT_EQ(states[1], kOn);
    EXPECT_EQ(keys[2], "b");
    EXPECT_EQ(states[2], kOn);
}

TEST_F(MergeStateTest, AKeyIsFoundWhateverWasAddedSince) {
    for (int i = 0; i < 10000; ++i)
        Merge(std::to_string(i), kOff);
    for (int i = 0; i < 10000; ++i)
        EXPECT_EQ(Merge(std::to_string(i), kOff).key, std::to_string(i));
    EXPECT_EQ(keys.UpperBound(), 10000U);
}

TEST_F(MergeStateTest, WhatIsCalledBeforeAddingCanPreventIt) {
    const auto refuse = [] { throw RunTimeError(ErrorNumber::OutOfMemory); };
    EXPECT_THROW(MergeState(keys, states, "a", kOn, refuse), RunTimeError);
    EXPECT_EQ(keys.UpperBound(), 0U);
    EXPECT_EQ(states.UpperBound(), 0U);
    Merge("a", kOff);
    EXPECT_EQ(MergeState(keys, states, "a", kOn, refuse).state, kOn);
}

TEST(SearchListsTest, ClearForgetsEverything) {
    SearchLists lists;
    lists.ProjectFiles.Append("a.cpr");
    test::AddUse(lists, "a", kOn);
    lists.Clear();
    EXPECT_EQ(lists.ProjectFiles.UpperBound(), 0U);
    EXPECT_TRUE(lists.PluginOccurrences.empty());
    EXPECT_EQ(lists.ProjectPluginStates.UpperBound(), 0U);
    test::AddUse(lists, "a", kOff);
    EXPECT_EQ(lists.PluginOccurrences.at(0).state, kOff);
    EXPECT_EQ(lists.ProjectPluginKeys.UpperBound(), 1U);
    EXPECT_EQ(lists.ProjectPluginStates[1], kOff);
}

}  // namespace
}  // namespace marlo
