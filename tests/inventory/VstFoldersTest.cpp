#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "core/Settings.h"
#include "inventory/VstFolders.h"
#include "tests/support/ApplicationTest.h"

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
    registry.SetDword(platform::kLocalMachine, "software\\vst", "VSTPluginsPath", 5);
    FillInVstFolder(application);
    EXPECT_EQ(ReadVstFolders(application), Folders{});
    EXPECT_EQ(Log(), "");
}

TEST_F(VstFoldersTest, AFolderThatThisMachineDoesNotHaveOrThatIsTooLongIsNotTaken) {
    SetInRegistry("C:\\Vst");
    registry.localPath = [](const std::string&) { return ""; };
    FillInVstFolder(application);
    registry.localPath = [](const std::string&) { return std::string(257, 'x'); };
    FillInVstFolder(application);
    EXPECT_EQ(ReadVstFolders(application), Folders{});
}

}  // namespace
}  // namespace marlo
