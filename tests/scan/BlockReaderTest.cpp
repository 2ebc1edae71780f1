#include <atomic>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <thread>

#include <gtest/gtest.h>

#include "core/RunTimeError.h"
#include "scan/BlockReader.h"
#include "scan/MarkerSearch.h"
#include "scan/ProjectPlugins.h"
#include "tests/support/ApplicationTest.h"
#include "tools/ProjectWriter.h"

namespace marlo {
namespace {

constexpr Position kBlock{BlockReader::kBlockSize};

/// A file of three blocks of "x" with a zero byte at its start and a marker that begins in the
/// second block and ends in the third.
class BlockReaderTest : public testing::Test {
  protected:
    BlockReaderTest() {
        std::string bytes(3 * BlockReader::kBlockSize, 'x');
        bytes.front() = '\0';
        bytes.replace(static_cast<std::size_t>(kMarker - 1), kBankMarker.size(), kBankMarker);
        path = folder.Write("song.cpr", bytes);
    }

    void Resize(Position size) const {
        std::filesystem::resize_file(test::PathOf(path), static_cast<std::uintmax_t>(size));
    }

    static constexpr Position kMarker = 2 * kBlock - 1;
    static constexpr Position kEnd = 3 * kBlock + 1;

    test::TempFolder folder;
    std::string path;
};

TEST_F(BlockReaderTest, WhatLiesInSeveralBlocksIsFoundAsInOne) {
    BlockReader reader(path);
    EXPECT_EQ(reader.Read(kEnd - 1), 'x');
    EXPECT_EQ(reader.Read(kEnd), std::nullopt);
    EXPECT_EQ(reader.FindMarker(1), kMarker);
    EXPECT_EQ(reader.FindMarker(kMarker + 1), std::nullopt);
    EXPECT_EQ(reader.FindForward(1, 'K'), kMarker + 3);
    EXPECT_EQ(reader.FindBackward(kEnd - 1, 1, '\0'), 1);
    EXPECT_TRUE(reader.Matches(kMarker, kBankMarker));
    EXPECT_EQ(reader.Text(kMarker, kEnd).size(), static_cast<std::size_t>(kEnd - kMarker));
}

TEST_F(BlockReaderTest, APositionBeforeTheFileIsAFailure) {
    BlockReader reader(path);
    EXPECT_THROW(reader.Read(0), RunTimeError);
}

TEST_F(BlockReaderTest, AFileThatBecomesShorterEndsWhereItDoesNow) {
    BlockReader reader(path);
    EXPECT_EQ(reader.Read(2), 'x');
    Resize(kMarker + 1);  // "Cc" is left of the marker
    EXPECT_EQ(reader.Read(kMarker + 1), 'c');
    EXPECT_EQ(reader.Read(kMarker + 2), std::nullopt);
    EXPECT_EQ(reader.Read(kEnd - 1), std::nullopt);
    EXPECT_FALSE(reader.Matches(kMarker, kBankMarker));
    EXPECT_EQ(reader.FindMarker(1), std::nullopt);
    EXPECT_EQ(reader.FindForward(2, '\0'), std::nullopt);
    EXPECT_EQ(reader.Text(kMarker, kEnd), "Cc");
    EXPECT_EQ(reader.FindBackward(kEnd - 1, 1, 'c'), kMarker + 1);
    EXPECT_EQ(reader.FindBackward(kEnd - 1, 1, '\0'), 1);
}

TEST_F(BlockReaderTest, OfAFileThatIsEmptiedOnlyWhatWasReadIsLeft) {
    BlockReader reader(path);
    EXPECT_EQ(reader.Read(2), 'x');
    Resize(0);
    EXPECT_EQ(reader.Text(1, kEnd).size(), BlockReader::kBlockSize);
    EXPECT_EQ(reader.FindMarker(1), std::nullopt);
    EXPECT_EQ(reader.FindForward(2, '\0'), std::nullopt);
    EXPECT_EQ(reader.FindBackward(kEnd - 1, 2, '\0'), std::nullopt);
    EXPECT_EQ(reader.FindBackward(kEnd - 1, kBlock + 1, 'x'), std::nullopt);
}

TEST_F(BlockReaderTest, ABlockThatWasReadShortStaysShortWhenTheFileGrows) {
    Resize(kBlock + 10);
    BlockReader reader(path);
    EXPECT_EQ(reader.Read(kBlock + 10), 'x');
    Resize(3 * kBlock);
    EXPECT_EQ(reader.Read(kBlock + 11), std::nullopt);
    EXPECT_EQ(reader.FindForward(2, '\0'), std::nullopt);
    EXPECT_EQ(reader.FindMarker(1), std::nullopt);
    EXPECT_EQ(reader.Text(kBlock + 1, 3 * kBlock), "xxxxxxxxxx");
    EXPECT_FALSE(reader.Matches(kBlock + 10, std::string_view("x\0", 2)));
    EXPECT_EQ(reader.Read(3 * kBlock), '\0') << "what was not read yet is as it is now";
    EXPECT_EQ(reader.FindBackward(3 * kBlock, 2, 'x'), kBlock + 10);
}

class ChangingProjectTest : public test::ApplicationTest {
  protected:
    static constexpr int kPlugins = 100;

    /// A project of about 1 MB with plug-ins from its start to its end.
    static std::string ProjectBytes() {
        tools::ProjectWriter project(1);
        for (int i = 0; i < kPlugins; ++i) {
            project.AddFiller(10000);
            project.AddPlugin({.name = "Plug-in " + std::to_string(i)});
        }
        return project.Bytes();
    }

    /// Cuts the project in its middle and writes the rest again, until told to end.
    static void KeepWriting(const std::string& path, const std::string& bytes,
                            const std::atomic<bool>& isOver) {
        constexpr std::size_t step = 10007;
        const std::size_t half = bytes.size() / 2;
        while (!isOver) {
            std::filesystem::resize_file(test::PathOf(path), half);
            std::ofstream file(test::PathOf(path), std::ios::binary | std::ios::app);
            for (std::size_t at = half; at < bytes.size(); at += step)
                file << bytes.substr(at, step) << std::flush;
        }
    }

    /// How many plug-ins a scan finds; fails the test when it fails or finds a name that is no part
    /// of the project.
    std::size_t Scan(const std::string& path, const std::string& bytes) {
        SearchLists lists;
        EXPECT_TRUE(GetPlugins4Project(application, lists, path)) << Log();
        const std::string before = "\"" + path + "\",\"";
        for (const auto& [key, state] : lists.PluginOccurrences) {
            EXPECT_TRUE(key.starts_with(before + "Plug-in ")) << key;
            const std::string_view rest = key.substr(before.size());
            EXPECT_NE(bytes.find(rest.substr(0, rest.find('"'))), std::string::npos) << key;
        }
        return lists.PluginOccurrences.size();
    }
};

TEST_F(ChangingProjectTest, AProjectThatIsCutAndWrittenDuringScansGivesNamesThatItHas) {
    const std::string bytes = ProjectBytes();
    const std::string path = folder.Write("song.cpr", bytes);
    std::atomic<bool> isOver = false;
    std::thread writer([&] { KeepWriting(path, bytes, isOver); });
    bool wasWhole = false;
    bool wasCut = false;
    for (int i = 0; i < 100 || !wasWhole || !wasCut; ++i) {
        const std::size_t found = Scan(path, bytes);
        EXPECT_GE(found, kPlugins / 2U - 1);
        EXPECT_LE(found, std::size_t{kPlugins});
        wasWhole = wasWhole || found == kPlugins;
        wasCut = wasCut || found < kPlugins;
    }
    isOver = true;
    writer.join();
}

}  // namespace
}  // namespace marlo
