#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "core/Settings.h"
#include "tests/support/ApplicationTest.h"
#include "tests/support/System.h"

namespace marlo {
namespace {

class SettingsTest : public test::ApplicationTest {};

TEST_F(SettingsTest, ReadingFromAMissingFileGivesEmptyTextAndMakesTheFile) {
    EXPECT_EQ(getSetting(application, 11), "");
    EXPECT_EQ(folder.Read("settings.ini"), "");
}

TEST_F(SettingsTest, ReadingRecord11FromAnEmptyFileGivesEmptyText) {
    folder.Write("settings.ini", "");
    EXPECT_EQ(getSetting(application, 11), "");
}

TEST_F(SettingsTest, WritingRecord50ToAnEmptyFileGivesFiftyRecordsWithZerosInFront) {
    ASSERT_TRUE(WriteSetting(application, 50, "C:\\VstPlugins"));
    const std::string bytes = folder.Read("settings.ini");
    const std::size_t recordsInFront = std::size_t{49} * 256;
    EXPECT_EQ(bytes.size(), recordsInFront + 256);
    EXPECT_EQ(bytes.substr(0, recordsInFront), std::string(recordsInFront, '\0'));
    EXPECT_EQ(bytes.substr(recordsInFront), "C:\\VstPlugins" + std::string(256 - 13, ' '));
    for (std::int16_t record = 1; record < 50; ++record)
        EXPECT_EQ(getSetting(application, record), "") << record;
    EXPECT_EQ(getSetting(application, 50), "C:\\VstPlugins");
}

TEST_F(SettingsTest, TheFileIsReadAndWrittenWhateverTheCaseOfItsName) {
    folder.Write("Settings.INI", "one");
    EXPECT_EQ(getSetting(application, 1), "one");
    EXPECT_TRUE(WriteSetting(application, 1, "two"));
    EXPECT_EQ(folder.Read("Settings.INI"), "two" + std::string(256 - 3, ' '));
}

TEST_F(SettingsTest, SpacesAtTheEndsOfAValueAreNotReadBack) {
    WriteSetting(application, 4, "  x");
    EXPECT_EQ(getSetting(application, 4), "x");
}

TEST_F(SettingsTest, AValueOf300CharactersIsReadBackAsItsFirst256) {
    const std::string value = " " + std::string(299, 'v');
    WriteSetting(application, 1, value);
    EXPECT_EQ(folder.Read("settings.ini").size(), 256U);
    EXPECT_EQ(getSetting(application, 1), std::string(255, 'v'));
}

TEST_F(SettingsTest, WritingARecordLeavesItsNeighboursAlone) {
    WriteSetting(application, 1, "one");
    WriteSetting(application, 2, "two");
    WriteSetting(application, 3, "three");
    WriteSetting(application, 2, "2");
    EXPECT_EQ(getSetting(application, 1), "one");
    EXPECT_EQ(getSetting(application, 2), "2");
    EXPECT_EQ(getSetting(application, 3), "three");
}

TEST_F(SettingsTest, SeveralRecordsAreWrittenFromTheFirstOn) {
    WriteSetting(application, 1, "one");
    EXPECT_TRUE(WriteSettings(application, 2, {"two", "", std::string(300, '4')}));
    EXPECT_EQ(getSetting(application, 1), "one");
    EXPECT_EQ(getSetting(application, 2), "two");
    EXPECT_EQ(getSetting(application, 3), "");
    EXPECT_EQ(getSetting(application, 4), std::string(256, '4'));
    EXPECT_EQ(folder.Read("settings.ini").size(), std::size_t{4} * 256);
}

TEST_F(SettingsTest, WritingNoRecordsWritesNothing) {
    EXPECT_TRUE(WriteSettings(application, 2, {}));
    EXPECT_FALSE(folder.Exists("settings.ini"));
}

TEST_F(SettingsTest, AValueIsKeptByteForByte) {
    WriteSetting(application, 1, "D:\\R\xE9verb, \"x\"\t");
    EXPECT_EQ(getSetting(application, 1), "D:\\R\xE9verb, \"x\"\t");
}

TEST_F(SettingsTest, ACutLastRecordIsReadAsFarAsItGoes) {
    folder.Write("settings.ini", std::string(256, ' ') + "cut");
    EXPECT_EQ(getSetting(application, 2), "cut");
}

TEST_F(SettingsTest, ARecordOfSpacesThenANulIsEmpty) {
    folder.Write("settings.ini", std::string(" \0x", 3));
    EXPECT_EQ(getSetting(application, 1), "");
}

TEST_F(SettingsTest, RecordZeroIsLoggedAndGivesNothing) {
    EXPECT_EQ(getSetting(application, 0), "");
    EXPECT_FALSE(WriteSetting(application, -1, "x"));
    EXPECT_EQ(Log(), LogLine("getSetting", 63, "Bad record number") +
                         LogLine("WriteSetting", 63, "Bad record number"));
    EXPECT_FALSE(folder.Exists("settings.ini"));
}

TEST_F(SettingsTest, AFolderInTheFilesPlaceIsLoggedAndNothingIsShown) {
    folder.MakeFolder("settings.ini");
    EXPECT_EQ(getSetting(application, 1), "");
    EXPECT_FALSE(WriteSetting(application, 1, "x"));
    EXPECT_EQ(Log(), LogLine("getSetting", 75, "Path/File access error") +
                         LogLine("WriteSetting", 75, "Path/File access error"));
}

TEST_F(SettingsTest, AFileThatMayNotBeWrittenCanStillBeRead) {
    if (!test::CanBeOrdinaryUser())
        GTEST_SKIP() << test::kNoOrdinaryUser;
    WriteSetting(application, 1, "kept");
    std::filesystem::permissions(folder.Path(), std::filesystem::perms{0755});
    std::filesystem::permissions(folder.Path("settings.ini"), std::filesystem::perms{0444});
    std::filesystem::permissions(folder.Path("resultfiles"), std::filesystem::perms{0777});
    {
        const test::OrdinaryUser user;
        EXPECT_EQ(getSetting(application, 1), "kept");
        EXPECT_FALSE(WriteSetting(application, 1, "changed"));
    }
    EXPECT_EQ(getSetting(application, 1), "kept");
    EXPECT_EQ(Log(), LogLine("WriteSetting", 70, "Permission denied"));
}

/// Writes a setting where the file may not grow beyond some size.
class FullDiskSettingsTest : public SettingsTest {
  protected:
    /// @param before the file as it is each time.
    void WriteAtEachLimit(const std::string& before, std::int16_t record,
                          const std::string& value) {
        constexpr std::int16_t records = 6;
        folder.Write("settings.ini", before);
        const std::vector<std::string> old = Settings(records);
        // A smaller size than the first is one at which nothing is written either.
        const std::size_t first = static_cast<std::size_t>(record - 1) * kMaxSettingLength;
        bool isWritten = false;
        for (std::size_t limit = first; limit <= first + kMaxSettingLength; ++limit) {
            folder.Write("settings.ini", before);
            {
                const test::FileSizeLimit full(limit);
                isWritten = WriteSetting(application, record, value);
            }
            std::vector<std::string> expected = old;
            if (isWritten)
                expected.at(static_cast<std::size_t>(record) - 1) = value;
            ASSERT_EQ(Settings(records), expected) << "record " << record << " within " << limit;
        }
        EXPECT_TRUE(isWritten) << "at last";
    }

    std::vector<std::string> Settings(std::int16_t count) {
        std::vector<std::string> values;
        for (std::int16_t record = 1; record <= count; ++record)
            values.push_back(getSetting(application, record));
        return values;
    }
};

TEST_F(FullDiskSettingsTest, WhereverTheDiskIsFullASettingIsOldOrNew) {
    if (!test::FileSizeLimit::IsPossible())
        GTEST_SKIP() << test::kNoFileSizeLimit;
    for (std::int16_t record = 1; record <= 4; ++record)
        WriteSetting(application, record, "/tmp/" + std::to_string(record) + "/vst");
    const std::string whole = folder.Read("settings.ini");
    const std::string cut = whole.substr(0, whole.size() - 250);
    const std::string shortValue = "/tmp/x/vst";
    const std::string longValue(kMaxSettingLength, 'v');
    WriteAtEachLimit(whole, 3, longValue);
    WriteAtEachLimit(whole, 5, shortValue);
    WriteAtEachLimit(whole, 6, longValue);
    WriteAtEachLimit(cut, 4, shortValue);
    WriteAtEachLimit("", 5, shortValue);
}

TEST_F(SettingsTest, AMissingApplicationFolderGivesEmptyTextAndFalse) {
    const Application lost{folder.Path("gone"), clock, desktop, registry, {}};
    EXPECT_EQ(getSetting(lost, 1), "");
    EXPECT_FALSE(WriteSetting(lost, 1, "x"));
    EXPECT_FALSE(folder.Exists("gone"));
}

TEST_F(SettingsTest, AValueFitsWhenItComesBackAsItIs) {
    EXPECT_TRUE(FitsSetting(""));
    EXPECT_TRUE(FitsSetting(std::string(256, 'x')));
    EXPECT_FALSE(FitsSetting(std::string(257, 'x')));
    EXPECT_FALSE(FitsSetting("x "));
    EXPECT_FALSE(FitsSetting(" x"));
    EXPECT_FALSE(FitsSetting(std::string("\0x", 2)));
    EXPECT_TRUE(FitsSetting(std::string("x\0", 2)));
}

TEST_F(SettingsTest, DatesHaveAFixedForm) {
    EXPECT_EQ(SettingDate(clock.Now()), "11-15-2026 03:10:22");
}

}  // namespace
}  // namespace marlo
