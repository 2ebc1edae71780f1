#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "core/Settings.h"
#include "inventory/VstFolders.h"
#include "tests/support/ApplicationTest.h"
#include "tests/support/System.h"

namespace marlo {
namespace {

using Folders = std::vector<std::string>;

class VstFoldersTest : public test::ApplicationTest {
  protected:
    void SetInRegistry(const std::string& path) {
        registry.SetText(platform::kLocalMachine, "SOFTWARE\\VST", "VSTPluginsPath", path);
    }
};

TEST_F(VstFoldersTest, TheListIsWrittenToTheRecordsFrom50On) {
    EXPECT_TRUE(WriteVstFolders(application, {"/a", "/b"}));
    EXPECT_EQ(getSetting(application, 50), "/a");
    EXPECT_EQ(getSetting(application, 51), "/b");
    EXPECT_EQ(ReadVstFolders(application), (Folders{"/a", "/b"}));
}

TEST_F(VstFoldersTest, AListThatShrinksLeavesNoOldPathsBehind) {
    WriteVstFolders(application, {"/a", "/b", "/c"});
    WriteVstFolders(application, {"/a", "/c"});
    EXPECT_EQ(ReadVstFolders(application), (Folders{"/a", "/c"}));
    EXPECT_EQ(getSetting(application, 52), "");
    WriteVstFolders(application, {});
    EXPECT_EQ(getSetting(application, 50), "");
    EXPECT_EQ(getSetting(application, 51), "");
}

TEST_F(VstFoldersTest, ClearingStopsAtTheFirstEmptyRecord) {
    WriteSetting(application, 50, "/a");
    WriteSetting(application, 52, "/beyond");
    WriteVstFolders(application, {"/b"});
    EXPECT_EQ(getSetting(application, 52), "/beyond");
    EXPECT_EQ(ReadVstFolders(application), Folders{"/b"});
}

TEST_F(VstFoldersTest, ARecordThatIsLeftOverIsBlank) {
    WriteVstFolders(application, {"/a", "/b"});
    WriteVstFolders(application, {"/b"});
    const std::string bytes = folder.Read("settings.ini");
    EXPECT_EQ(bytes.substr(std::size_t{49} * 256), "/b" + std::string(256 - 2 + 256, ' '));
}

TEST_F(VstFoldersTest, WhereverTheDiskIsFullTheListIsOldOrNew) {
    if (!test::FileSizeLimit::IsPossible())
        GTEST_SKIP() << test::kNoFileSizeLimit;
    const Folders old = {"/a", "/b"};
    const Folders changed = {"/b", "/a", "/c"};
    WriteVstFolders(application, old);
    const std::string before = folder.Read("settings.ini");
    bool isWritten = false;
    for (std::size_t limit = std::size_t{49} * 256; limit <= std::size_t{52} * 256; limit += 32) {
        folder.Write("settings.ini", before);
        {
            const test::FileSizeLimit full(limit);
            isWritten = WriteVstFolders(application, changed);
        }
        EXPECT_EQ(ReadVstFolders(application), isWritten ? changed : old) << limit;
    }
    EXPECT_TRUE(isWritten) << "at last";
}

TEST_F(VstFoldersTest, AListMayTakeEveryRecordAndNoMore) {
    constexpr std::size_t all = 32767 - 50 + 1;
    Folders folders(all, "/a");
    EXPECT_TRUE(WriteVstFolders(application, folders));
    EXPECT_EQ(folder.Read("settings.ini").size(), std::size_t{32767} * 256);
    EXPECT_EQ(getSetting(application, 32767), "/a");
    folders.back() = "/b";
    folders.emplace_back("/one too many");
    EXPECT_FALSE(WriteVstFolders(application, folders));
    EXPECT_EQ(getSetting(application, 32767), "/a");
    EXPECT_EQ(Log(), LogLine("WriteSetting", 63, "Bad record number"));
}

TEST_F(VstFoldersTest, SettingsThatCannotBeWrittenAreAFailure) {
    folder.MakeFolder("settings.ini");
    EXPECT_FALSE(WriteVstFolders(application, {"/a"}));
    EXPECT_NE(Log(), "");
}

TEST_F(VstFoldersTest, WithoutAFolderTheRegistrysIsTaken) {
    SetInRegistry("C:\\Vst");
    registry.localPath = [](const std::string& path) { return "/drive_c for " + path; };
    FillInVstFolder(application);
    EXPECT_EQ(ReadVstFolders(application), Folders{"/drive_c for C:\\Vst"});
}

TEST_F(VstFoldersTest, AFolderThatIsThereIsKept) {
    SetInRegistry("C:\\Vst");
    WriteVstFolders(application, {"/a"});
    FillInVstFolder(application);
    EXPECT_EQ(ReadVstFolders(application), Folders{"/a"});
}

TEST_F(VstFoldersTest, ARegistryThatNamesNoFolderLeavesTheListEmpty) {
    FillInVstFolder(application);
    registry.AddKey(platform::kLocalMachine, "software\\vst");
    FillInVstFolder(application);
    SetInRegistry("");
    FillInVstFolder(application);
    registry.Set(platform::kLocalMachine, "software\\vst", "VSTPluginsPath",
                 platform::registry_type::kBinary, {'C', ':'});
    FillInVstFolder(application);
    EXPECT_EQ(ReadVstFolders(application), Folders{});
    EXPECT_EQ(Log(), "");
}

TEST_F(VstFoldersTest, AFolderThatThisMachineDoesNotHaveIsNotTaken) {
    SetInRegistry("C:\\Vst");
    registry.localPath = [](const std::string&) { return ""; };
    FillInVstFolder(application);
    EXPECT_EQ(ReadVstFolders(application), Folders{});
}

TEST_F(VstFoldersTest, SpacesAtTheEndsOfTheRegistrysFolderAreNotReadBack) {
    SetInRegistry(" C:\\Vst ");
    FillInVstFolder(application);
    EXPECT_EQ(ReadVstFolders(application), Folders{"C:\\Vst"});
}

TEST_F(VstFoldersTest, TheRegistrysFolderIsCutTo256Bytes) {
    SetInRegistry(" " + std::string(256, 'x'));
    FillInVstFolder(application);
    EXPECT_EQ(ReadVstFolders(application), Folders{std::string(255, 'x')});
}

TEST_F(VstFoldersTest, ANumberInTheRegistryIsTakenAsItsText) {
    registry.SetDword(platform::kLocalMachine, "software\\vst", "VSTPluginsPath", 5);
    FillInVstFolder(application);
    EXPECT_EQ(ReadVstFolders(application), Folders{"5"});
}

}  // namespace
}  // namespace marlo
