#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "scan/ProjectPlugins.h"
#include "tests/support/ApplicationTest.h"
#include "tests/support/HeldFiles.h"
#include "tests/support/System.h"
#include "tools/ProjectWriter.h"

namespace marlo {
namespace {

using namespace std::string_literals;
using tools::PluginBytes;

using Texts = std::vector<std::string>;

/// What lies in front of the first plug-in in the projects of these tests.
const std::string kFront(100, '\0');

class ProjectPluginsTest : public test::ApplicationTest {
  protected:
    /// Scans `bytes` as the project "song.cpr".
    bool Scan(const std::string& bytes, const std::string& name = "song.cpr") {
        return GetPlugins4Project(application, lists, folder.Write(name, bytes));
    }

    Texts Occurrences() const {
        Texts records;
        std::ranges::transform(lists.PluginOccurrences, std::back_inserter(records), RecordOf);
        return records;
    }

    /// The keys, each with its merged state behind it.
    Texts Keys() const {
        Texts keys;
        for (std::size_t i = 1; i <= lists.ProjectPluginKeys.UpperBound(); ++i)
            keys.push_back(std::string(lists.ProjectPluginKeys[i])
                               .append(" ")
                               .append(lists.ProjectPluginStates[i]));
        return keys;
    }

    /// A key record of "song.cpr", or of another project in the folder.
    std::string Key(const std::string& plugin, const std::string& type = "VST    ",
                    const std::string& name = "song.cpr") const {
        return "\"" + folder.Path(name) + "\",\"" + plugin + "\",\"" + type + "\"";
    }

    SearchLists lists;
};

TEST_F(ProjectPluginsTest, AFileWithoutABankAddsNothing) {
    EXPECT_TRUE(Scan("just some text"));
    EXPECT_EQ(lists.PluginOccurrences.size(), 0U);
    EXPECT_EQ(lists.ProjectPluginKeys.UpperBound(), 0U);
    EXPECT_EQ(Log(), "");
}

TEST_F(ProjectPluginsTest, AnEmptyFileAddsNothing) {
    EXPECT_TRUE(Scan(""));
    EXPECT_EQ(Occurrences(), Texts{});
}

TEST_F(ProjectPluginsTest, AVstPluginHasItsTypePaddedInBothRecords) {
    EXPECT_TRUE(Scan(kFront + PluginBytes({.name = "Reverb A"})));
    EXPECT_EQ(Occurrences(),
              Texts{"\"" + folder.Path("song.cpr") + R"(","Reverb A","VST    ","On")"});
    EXPECT_EQ(Keys(), Texts{"\"" + folder.Path("song.cpr") + R"(","Reverb A","VST    " On)"});
}

TEST_F(ProjectPluginsTest, BothBankMagicsCount) {
    Scan(kFront + PluginBytes({.name = "Opaque", .isOpaqueBank = true}) +
         PluginBytes({.name = "Programs", .isOpaqueBank = false}));
    EXPECT_EQ(Keys(), (Texts{Key("Opaque") + " On", Key("Programs") + " On"}));
}

TEST_F(ProjectPluginsTest, AnotherMagicBehindTheSizeIsIgnored) {
    std::string bytes = PluginBytes({.name = "Preset", .isOpaqueBank = false});
    bytes.replace(bytes.find("FxBk"), 4, "FxCk");
    EXPECT_TRUE(Scan(kFront + bytes));
    EXPECT_EQ(Occurrences(), Texts{});
}

TEST_F(ProjectPluginsTest, ALowerCaseMarkerIsIgnored) {
    std::string bytes = PluginBytes({.name = "Lower"});
    bytes.replace(bytes.find("CcnK"), 4, "ccnk");
    EXPECT_TRUE(Scan(kFront + bytes));
    EXPECT_EQ(Occurrences(), Texts{});
}

TEST_F(ProjectPluginsTest, ACDirectlyInFrontHidesTheMarker) {
    std::string bytes = PluginBytes({.name = "Hidden"});
    bytes.insert(bytes.find("CcnK"), "C");
    EXPECT_TRUE(Scan(kFront + bytes));
    EXPECT_EQ(Occurrences(), Texts{});
}

TEST_F(ProjectPluginsTest, ACFourBytesInFrontDoesNotHideTheMarker) {
    std::string bytes = PluginBytes({.name = "Seen"});
    bytes.replace(bytes.find("CcnK") - 4, 4, "Cxyz");
    EXPECT_TRUE(Scan(kFront + bytes));
    EXPECT_EQ(lists.PluginOccurrences.size(), 1U);
}

TEST_F(ProjectPluginsTest, AMarkerInTheSkippedSizeBytesIsNotSeen) {
    // The size bytes of the first marker are a marker themselves, in front of a bank magic.
    EXPECT_TRUE(Scan(kFront + "CcnK" + "CcnK" + "FBCx" + "FBCh" + kFront));
    EXPECT_EQ(Occurrences(), Texts{});
}

TEST_F(ProjectPluginsTest, StatesOffOnOffMergeToOn) {
    const auto plugin = [](std::uint8_t state) {
        return PluginBytes({.name = "Delay", .state = state});
    };
    EXPECT_TRUE(Scan(kFront + plugin(0) + plugin(1) + plugin(0)));
    EXPECT_EQ(Occurrences(), (Texts{Key("Delay") + ",\"Off\"", Key("Delay") + ",\"On\"",
                                    Key("Delay") + ",\"Off\""}));
    EXPECT_EQ(Keys(), Texts{Key("Delay") + " On"});
}

TEST_F(ProjectPluginsTest, TheSamePluginInTwoProjectsGivesTwoKeysWithTheirOwnStates) {
    EXPECT_TRUE(Scan(kFront + PluginBytes({.name = "Delay", .state = 0}), "a.cpr"));
    EXPECT_TRUE(Scan(kFront + PluginBytes({.name = "Delay", .state = 1}), "b.cpr"));
    EXPECT_EQ(Keys(), (Texts{Key("Delay", "VST    ", "a.cpr") + " Off",
                             Key("Delay", "VST    ", "b.cpr") + " On"}));
}

TEST_F(ProjectPluginsTest, TheSameNameWithBothTypesGivesTwoKeys) {
    EXPECT_TRUE(Scan(kFront + PluginBytes({.name = "Echo"}) +
                     PluginBytes({.name = "Echo", .isVst = false})));
    EXPECT_EQ(Keys(), (Texts{Key("Echo") + " On", Key("Echo", "DirectX") + " On"}));
}

TEST_F(ProjectPluginsTest, AnyTypeByteButTheDigit1IsDirectX) {
    for (const char typeByte : {'0', '2', '\1', '\xFF'}) {
        std::string bytes = PluginBytes({.name = "Typed"});
        bytes[5] = typeByte;
        lists.Clear();
        EXPECT_TRUE(Scan(kFront + bytes));
        EXPECT_EQ(Keys(), Texts{Key("Typed", "DirectX") + " On"}) << static_cast<int>(typeByte);
    }
}

TEST_F(ProjectPluginsTest, AnyFlagByteBut1IsOff) {
    for (const int flag : {0, 2, 255}) {
        lists.Clear();
        Scan(kFront + PluginBytes({.name = "Flag", .state = static_cast<std::uint8_t>(flag)}));
        EXPECT_EQ(Keys(), Texts{Key("Flag") + " Off"}) << flag;
    }
}

TEST_F(ProjectPluginsTest, ANameThatRunsToTheEndOfTheFileIsDropped) {
    const std::string first = PluginBytes({.name = "First"});
    EXPECT_TRUE(Scan(kFront + first + std::string(40, 'x') + "CcnK....FBChtail"));
    EXPECT_EQ(Keys(), Texts{Key("First") + " On"});
    EXPECT_EQ(Log(), "");
}

TEST_F(ProjectPluginsTest, AZeroByteWhereTheNameStartsIsPartOfTheName) {
    // Name at z + 36: a zero byte, then "x" up to the zero behind the bank.
    const std::string afterZero = std::string(35, 'd') + "\0xyz"s;
    const std::string bytes = kFront + afterZero + std::string(20, 'p') + "CcnK....FBCh" + kFront;
    EXPECT_TRUE(Scan(bytes));
    const std::string name = "\0xyz"s + std::string(20, 'p') + "CcnK....FBCh";
    EXPECT_EQ(Keys(), Texts{Key(name, "DirectX") + " Off"});
}

TEST_F(ProjectPluginsTest, WithoutAZeroByteInFrontTheScanEndsQuietly) {
    EXPECT_TRUE(Scan(std::string(80, 'x') + "CcnK....FBCh" + PluginBytes({.name = "Later"})));
    EXPECT_EQ(Occurrences(), Texts{});
    EXPECT_EQ(Log(), "");
}

TEST_F(ProjectPluginsTest, AZeroByteAtPosition1DoesNotCount) {
    EXPECT_TRUE(Scan("\0"s + std::string(80, 'x') + "CcnK....FBCh" + kFront));
    EXPECT_EQ(Occurrences(), Texts{});
}

TEST_F(ProjectPluginsTest, AZeroByteAtPosition2Counts) {
    EXPECT_TRUE(Scan("x\0"s + std::string(80, 'x') + "CcnK....FBCh" + kFront));
    EXPECT_EQ(lists.PluginOccurrences.size(), 1U);
}

TEST_F(ProjectPluginsTest, AMarkerWithinTheFirst52BytesIsLoggedAndFails) {
    EXPECT_FALSE(Scan(std::string(51, '\0') + "CcnK....FBCh" + kFront));
    EXPECT_EQ(Log(), LogLine("GetPlugins4Project " + folder.Path("song.cpr") + " ", 63,
                             "Bad record number"));
}

TEST_F(ProjectPluginsTest, AMarkerAtByte53EndsTheScanQuietly) {
    EXPECT_TRUE(Scan(std::string(52, '\0') + "CcnK....FBCh" + kFront));
    EXPECT_EQ(Occurrences(), Texts{});
    EXPECT_EQ(Log(), "");
}

TEST_F(ProjectPluginsTest, AnEarlyMarkerWithoutABankMagicIsNoFailure) {
    EXPECT_TRUE(Scan("CcnK....Fxxx" + kFront));
    EXPECT_EQ(Log(), "");
}

TEST_F(ProjectPluginsTest, AMissingFileIsLoggedAndFails) {
    const std::string path = folder.Path("gone.cpr");
    EXPECT_FALSE(GetPlugins4Project(application, lists, path));
    EXPECT_EQ(Log(), LogLine("GetPlugins4Project " + path + " ", 53, "File not found"));
}

TEST_F(ProjectPluginsTest, AFolderIsLoggedAndFails) {
    EXPECT_FALSE(GetPlugins4Project(application, lists, folder.MakeFolder("folder.cpr")));
    EXPECT_EQ(Log(), LogLine("GetPlugins4Project " + folder.Path("folder.cpr") + " ", 75,
                             "Path/File access error"));
}

TEST_F(ProjectPluginsTest, AFileThatMayNotBeReadIsLoggedAndFails) {
    const std::string path = folder.Write("locked.cpr", kFront);
    std::filesystem::permissions(folder.Path(), std::filesystem::perms{0755});
    std::filesystem::permissions(folder.Path("resultfiles"), std::filesystem::perms{0777});
    {
        const test::UnreadableFile locked(path);
        EXPECT_FALSE(GetPlugins4Project(application, lists, path));
    }
    EXPECT_EQ(Log(), LogLine("GetPlugins4Project " + path + " ", 70, "Permission denied"));
}

TEST_F(ProjectPluginsTest, APathWithANulByteIsLoggedAndFails) {
    EXPECT_FALSE(GetPlugins4Project(application, lists, "a\0b"s));
    EXPECT_EQ(Log(), LogLine("GetPlugins4Project a\0b "s, 52, "Bad file name or number"));
}

TEST_F(ProjectPluginsTest, APathWithAQuoteAndACommaGoesIntoTheRecordsAsItIs) {
    Scan(kFront + PluginBytes({.name = "Echo"}), test::OddName());
    EXPECT_EQ(Keys(), Texts{Key("Echo", "VST    ", test::OddName()) + " On"});
}

TEST_F(ProjectPluginsTest, NameBytesAreNeverConverted) {
    Scan(kFront + PluginBytes({.name = "R\xE9verb\x81 \"x\", \r\n"}));
    EXPECT_EQ(Keys(), Texts{Key("R\xE9verb\x81 \"x\", \r\n") + " On"});
}

TEST_F(ProjectPluginsTest, EntriesOfEarlierProjectsStayWhenALaterOneFails) {
    Scan(kFront + PluginBytes({.name = "Kept"}), "a.cpr");
    EXPECT_FALSE(GetPlugins4Project(application, lists, folder.Path("gone.cpr")));
    EXPECT_EQ(Keys(), Texts{Key("Kept", "VST    ", "a.cpr") + " On"});
}

TEST_F(ProjectPluginsTest, MoreThan500EntriesAreKept) {
    std::string bytes = kFront;
    for (int i = 0; i < 1200; ++i)
        bytes += PluginBytes({.name = "Plug-in " + std::to_string(i), .chunkSize = 8});
    Scan(bytes);
    EXPECT_EQ(lists.PluginOccurrences.size(), 1200U);
    EXPECT_EQ(lists.ProjectPluginKeys[1], Key("Plug-in 0"));
    EXPECT_EQ(lists.ProjectPluginKeys[1200], Key("Plug-in 1199"));
}

TEST_F(ProjectPluginsTest, RecordsBeyond256MiBAreOutOfMemoryAndTheEarlierOnesKept) {
    // Each bank's name is all that follows the one zero byte: 24 MiB.
    std::string bytes(2, '\0');
    bytes += std::string(std::size_t{24} * 1024 * 1024, 'x');
    for (int i = 0; i < 20; ++i)
        bytes += "CcnK....FBCh";
    ErrorEntry logged;
    int entries = 0;
    application.onErrorLogged = [&](const ErrorEntry& entry) {
        logged = entry;
        ++entries;
    };
    EXPECT_FALSE(Scan(bytes + kFront));
    EXPECT_EQ(entries, 1);
    EXPECT_EQ(logged.number, 7);
    EXPECT_EQ(logged.description, "Out of memory");
    // Nine occurrences and one key of 24 MiB each fit in.
    EXPECT_EQ(lists.PluginOccurrences.size(), 9U);
    EXPECT_EQ(lists.ProjectPluginKeys.UpperBound(), 1U);
    EXPECT_EQ(logged.procedure, "GetPlugins4Project " + folder.Path("song.cpr") + " " +
                                    std::string(lists.ProjectPluginKeys[1]));
}

TEST_F(ProjectPluginsTest, WhatAllProjectsAddToTheListsHasALimitToo) {
    const std::string bytes = kFront + PluginBytes({.name = "Delay"});
    EXPECT_TRUE(Scan(bytes));
    const std::size_t used = kMaxTotalRecordText - lists.recordTextLeft;
    const std::string occurrence = Occurrences().at(0);
    EXPECT_EQ(used, occurrence.size() + lists.ProjectPluginKeys[1].size());

    lists.Clear();
    EXPECT_EQ(lists.recordTextLeft, kMaxTotalRecordText);
    lists.recordTextLeft = 2 * used - 1;
    EXPECT_TRUE(Scan(bytes));
    EXPECT_EQ(Log(), "");
    EXPECT_FALSE(Scan(bytes, "other.cpr"));
    EXPECT_NE(Log().find("Error No.: 7 Description: Out of memory"), std::string::npos) << Log();
    EXPECT_EQ(lists.ProjectPluginKeys.UpperBound(), 1U);
    EXPECT_EQ(Occurrences().at(0), occurrence);
}

TEST_F(ProjectPluginsTest, ANameOfMoreThan256MiBThatRunsToTheEndIsDroppedQuietly) {
    const std::string path = folder.Path("long.cpr");
    {
        std::ofstream file(path, std::ios::binary);
        file << "x\0"s << std::string(80, 'x') << "CcnK....FBCh";
        const std::string stretch(std::size_t{1024} * 1024, 'x');
        for (int i = 0; i < 257; ++i)
            file << stretch;
    }
    EXPECT_TRUE(GetPlugins4Project(application, lists, path));
    EXPECT_EQ(Log(), "");
    EXPECT_EQ(Occurrences(), Texts{});
}

TEST_F(ProjectPluginsTest, AProjectOf4GiBIsScannedWithin16MiB) {
    const std::string bank = std::string(8, '\0') + PluginBytes({.name = "Far out"});
    const std::uint64_t size = (std::uint64_t{4} << 30U) + 1000;
    const std::string path = folder.Write("huge.cpr", bank);
    std::filesystem::resize_file(path, size);
    std::fstream(path, std::ios::binary | std::ios::in | std::ios::out | std::ios::ate) << bank;

    const std::size_t taken =
        test::MemoryTakenBy([&] { EXPECT_TRUE(GetPlugins4Project(application, lists, path)); });
    EXPECT_LT(taken, std::size_t{16} * 1024 * 1024);
    EXPECT_EQ(lists.PluginOccurrences.size(), 2U);
    EXPECT_EQ(Keys(), Texts{Key("Far out", "VST    ", "huge.cpr") + " On"});
}

TEST_F(ProjectPluginsTest, ARealProjectHasItsSevenPlugins) {
    const std::filesystem::path given(MARLO_REAL_PROJECT);
    if (!std::filesystem::exists(given))
        GTEST_SKIP() << "no real project at hand";
    const std::string path = given.string();
    EXPECT_TRUE(GetPlugins4Project(application, lists, path));
    Texts names;
    const std::size_t start = path.size() + std::string(R"("",")").size();
    for (std::size_t i = 1; i <= lists.ProjectPluginKeys.UpperBound(); ++i) {
        const std::string_view key = lists.ProjectPluginKeys[i];
        names.emplace_back(key.substr(start, key.find('"', start) - start));
        EXPECT_TRUE(key.ends_with(",\"VST    \"")) << key;
        EXPECT_EQ(lists.ProjectPluginStates[i], "On") << key;
    }
    EXPECT_EQ(names, (Texts{"ArtsAcousticReverb", "Limitless", "Sylenth1", "Q", "Embracer",
                            "EQuilibrium", "Hive"}));
}

}  // namespace
}  // namespace marlo
