#include <gtest/gtest.h>

#include "core/RunTimeError.h"
#include "scan/SearchLists.h"

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

TEST(MergedStatesTest, AnIndexOutsideTheListIsOutOfRange) {
    MergedStates states;
    states.Merge("a", kOn);
    EXPECT_THROW(states[0], RunTimeError);
    EXPECT_THROW(states[2], RunTimeError);
}

TEST(MergedStatesTest, OnStaysOnAndOffTurnsOn) {
    MergedStates states;
    states.Merge("a", kOff);
    states.Merge("b", kOn);
    EXPECT_EQ(states.Merge("a", kOn).state, kOn);
    EXPECT_EQ(states.Merge("b", kOff).state, kOn);
    EXPECT_EQ(states.UpperBound(), 2U);
    EXPECT_EQ(states[1].key, "a");
    EXPECT_EQ(states[2].key, "b");
}

TEST(MergedStatesTest, AKeyIsFoundWhateverWasAddedSince) {
    MergedStates states;
    for (int i = 0; i < 10000; ++i)
        states.Merge(std::to_string(i), kOff);
    for (int i = 0; i < 10000; ++i)
        EXPECT_EQ(states.Merge(std::to_string(i), kOff).key, std::to_string(i));
    EXPECT_EQ(states.UpperBound(), 10000U);
}

TEST(MergedStatesTest, WhatIsCalledBeforeAddingCanPreventIt) {
    MergedStates states;
    const auto refuse = [] { throw RunTimeError(ErrorNumber::OutOfMemory); };
    EXPECT_THROW(states.Merge("a", kOn, refuse), RunTimeError);
    EXPECT_EQ(states.UpperBound(), 0U);
    states.Merge("a", kOff);
    EXPECT_EQ(states.Merge("a", kOn, refuse).state, kOn);
}

TEST(SearchListsTest, ClearForgetsEverything) {
    SearchLists lists;
    lists.ProjectFiles.Append("a.cpr");
    lists.PluginOccurrences.push_back(lists.ProjectPluginKeys.Merge("a", kOn));
    lists.Clear();
    EXPECT_EQ(lists.ProjectFiles.UpperBound(), 0U);
    EXPECT_TRUE(lists.PluginOccurrences.empty());
    EXPECT_EQ(lists.ProjectPluginKeys.Merge("a", kOff).state, kOff);
    EXPECT_EQ(lists.ProjectPluginKeys.UpperBound(), 1U);
}

}  // namespace
}  // namespace marlo
