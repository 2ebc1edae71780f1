#include <filesystem>
#include <fstream>
#include <optional>
#include <string>

#include <gtest/gtest.h>

#include "core/RecordIndex.h"
#include "core/RunTimeError.h"
#include "tests/support/ApplicationTest.h"

namespace marlo {
namespace {

constexpr const char* kFile = "resultfiles/list.csv";

class RecordIndexTest : public test::ApplicationTest {
  protected:
    void Write(const std::string& text) const { folder.Write(kFile, text); }

    std::string Find(const std::string& key) {
        const auto found = index.Find(key);
        return found ? std::string(*found) : "(nothing)";
    }

    /// Finds records by their first field, but not those whose second one is "hidden".
    RecordIndex index{application, "\\ResultFiles\\list.csv",
                      [](RecordReader& record, std::string& key) {
                          key = record[0];
                          return record[1] != "hidden";
                      }};
};

TEST_F(RecordIndexTest, TheFirstRecordWithTheKeyCounts) {
    Write("\"a\",\"x\",\"1\"\r\n\"b\",\"x\",\"2\"\r\n\"a\",\"x\",\"3\"\r\n");
    EXPECT_EQ(Find("b"), "2");
    EXPECT_EQ(Find("a"), "1");
    EXPECT_EQ(Find("c"), "(nothing)");
    EXPECT_EQ(Find("a"), "1");
}

TEST_F(RecordIndexTest, RecordsThatAreNotToBeFoundArePassedOver) {
    Write("\"a\",\"hidden\",\"1\"\r\n\"a\",\"x\",\"2\"\r\n");
    EXPECT_EQ(Find("a"), "2");
}

TEST_F(RecordIndexTest, TheFileIsOpenedAtTheFirstQuestionAndReadOnlyOnce) {
    Write("\"a\",\"x\",\"1\"\r\nmalformed\r\n\"b\",\"x\",\"2\"\r\n");
    EXPECT_EQ(Find("a"), "1");
    EXPECT_EQ(Log(), "");
    EXPECT_EQ(Find("c"), "(nothing)");
    std::ofstream(folder.Path(kFile), std::ios::app) << "\"c\",\"x\",\"3\"\r\n";
    EXPECT_EQ(Find("c"), "(nothing)") << "one report sees one state of the file";
    EXPECT_EQ(Log(), LogLine("SplitRecord: malformed 3", 5, "Invalid procedure call"));
    std::filesystem::remove(folder.Path(kFile));
    EXPECT_EQ(Find("b"), "2");
}

TEST_F(RecordIndexTest, AMissingFileIsAFailureOfEachQuestionUntilItIsThere) {
    for (int i = 0; i < 2; ++i)
        EXPECT_THROW(Find("a"), RunTimeError);
    Write("\"a\",\"x\",\"1\"\r\n");
    EXPECT_EQ(Find("a"), "1");
}

TEST_F(RecordIndexTest, WhatWasFoundStaysWhereItIs) {
    std::string text;
    for (int i = 0; i < 20'000; ++i)
        text += std::to_string(i) + ",x,value " + std::to_string(i) + "\r\n";
    Write(text);
    const auto first = index.Find("0");
    EXPECT_EQ(Find("19999"), "value 19999");
    EXPECT_EQ(first, std::optional<std::string_view>("value 0"));
    for (int i = 0; i < 20'000; ++i)
        EXPECT_EQ(Find(std::to_string(i)), "value " + std::to_string(i));
}

}  // namespace
}  // namespace marlo
