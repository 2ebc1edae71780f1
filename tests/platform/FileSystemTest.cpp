#include <algorithm>
#include <ctime>
#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/FileSystem.h"
#include "tests/support/System.h"
#include "tests/support/TempFolder.h"

namespace marlo::platform {
namespace {

using Names = std::vector<std::string>;

class FileSystemTest : public testing::Test {
  protected:
    template <class Entry>
    static Names NamesOf(const std::vector<Entry>& entries) {
        Names names;
        for (const Entry& entry : entries)
            names.push_back(entry.name);
        std::sort(names.begin(), names.end());
        return names;
    }

    test::TempFolder folder;
    std::error_code error;
};

TEST_F(FileSystemTest, AFoldersEntriesAreFilesAndFoldersAndLinksCountAsWhatTheyLeadTo) {
    folder.Write("file", "");
    folder.Write(".hidden", "");
    folder.MakeFolder("sub");
    if (!test::MakeLink("sub", folder.Path("to folder")) ||
        !test::MakeLink("file", folder.Path("to file")))
        GTEST_SKIP() << test::kNoLinks;
    const auto entries = Folder::Open(folder.Path(), error).Entries(error);
    EXPECT_FALSE(error);
    EXPECT_EQ(NamesOf(entries.files), (Names{".hidden", "file", "to file"}));
    EXPECT_EQ(NamesOf(entries.folders), (Names{"sub", "to folder"}));
}

TEST_F(FileSystemTest, ALinkThatLeadsNowhereCountsAsAFile) {
    if (!test::MakeLink("nowhere", folder.Path("dangling")))
        GTEST_SKIP() << test::kNoLinks;
    const auto entries = Folder::Open(folder.Path(), error).Entries(error);
    EXPECT_FALSE(error);
    EXPECT_EQ(NamesOf(entries.files), Names{"dangling"});
    EXPECT_TRUE(entries.folders.empty());
}

TEST_F(FileSystemTest, AListingTellsRegularFilesFromLinks) {
    folder.Write("file", "");
    EXPECT_EQ(Folder::Open(folder.Path(), error).Entries(error).files[0].kind, FileKind::Regular);
    if (!test::CanTellLinks() || !test::MakeLink("file", folder.Path("link")))
        GTEST_SKIP() << test::kNoLinks;
    for (const FileEntry& file : Folder::Open(folder.Path(), error).Entries(error).files)
        EXPECT_EQ(file.kind, file.name == "link" ? FileKind::Link : FileKind::Regular);
    ASSERT_TRUE(test::MakeLink(".", folder.Path("folder link")));
    folder.MakeFolder("sub");
    for (const SubfolderEntry& sub : Folder::Open(folder.Path(), error).Entries(error).folders)
        EXPECT_EQ(sub.isLink, sub.name == "folder link");
}

TEST_F(FileSystemTest, AFolderIsTheSameWhateverPathLeadsToIt) {
    folder.MakeFolder("sub");
    if (!test::MakeLink("sub", folder.Path("link")))
        GTEST_SKIP() << test::kNoLinks;
    const auto direct = Folder::Open(folder.Path("sub"), error).Identity(error);
    const auto linked = Folder::Open(folder.Path("link"), error).Identity(error);
    const auto other = Folder::Open(folder.Path(), error).Identity(error);
    EXPECT_EQ(direct, linked);
    EXPECT_NE(direct, other);
}

TEST_F(FileSystemTest, OpeningWhatIsNoFolderFails) {
    Folder::Open(folder.Write("file", ""), error);
    EXPECT_EQ(error, std::errc::not_a_directory);
    Folder::Open(folder.Path("gone"), error);
    EXPECT_EQ(error, std::errc::no_such_file_or_directory);
}

TEST_F(FileSystemTest, PathsAreJoinedByOneSeparator) {
    const std::string songs = folder.Path("songs");
    EXPECT_EQ(JoinPath(songs, "a.cpr"), folder.Path("songs/a.cpr"));
    EXPECT_EQ(JoinPath(songs + "/", "a.cpr"), songs + "/a.cpr");
}

TEST_F(FileSystemTest, AFullPathKeepsItsLinksAndLosesWhatIsNoName) {
    folder.MakeFolder("real/sub");
    if (!test::MakeLink("real/sub", folder.Path("link")))
        GTEST_SKIP() << test::kNoLinks;
    EXPECT_EQ(FullPath(folder.Path("link") + "//./", error), folder.Path("link"));
    EXPECT_EQ(FullPath(folder.Path("gone/b.cpr"), error), folder.Path("gone/b.cpr"));
    EXPECT_EQ(FullPath("a.cpr", error),
              JoinPath(std::filesystem::current_path().string(), "a.cpr"));
    EXPECT_FALSE(error);
}

TEST_F(FileSystemTest, ARealPathIsTheSameWhateverPathLeadsThere) {
    const std::string file = folder.Write("real/sub/file", "");
    const std::string real = RealPath(file, error);
    EXPECT_FALSE(error);
    EXPECT_TRUE(IsFile(real, error));
    EXPECT_EQ(RealPath(real, error), real);
    EXPECT_EQ(RealPath(folder.Path("real/../real/./sub/file"), error), real);
    EXPECT_EQ(RealPath(folder.Path("real/sub"), error), ParentPath(real));
    EXPECT_EQ(RealPath(folder.Path("gone"), error), "");
    EXPECT_EQ(error, std::errc::no_such_file_or_directory);
    if (!test::CanTellLinks() || !test::MakeLink("real/sub", folder.Path("link")))
        GTEST_SKIP() << test::kNoLinks;
    EXPECT_EQ(RealPath(folder.Path("link/file"), error), real);
}

TEST_F(FileSystemTest, AFolderIsMadeInOneThatExistsAndNothingIsReplaced) {
    MakeFolder(folder.Path("new"), error);
    EXPECT_FALSE(error);
    EXPECT_TRUE(IsFolder(folder.Path("new"), error));
    folder.Write("new/file", "whole");
    MakeFolder(folder.Path("new"), error);
    EXPECT_EQ(error, std::errc::file_exists);
    MakeFolder(folder.Path("new/file"), error);
    EXPECT_EQ(error, std::errc::file_exists);
    EXPECT_EQ(folder.Read("new/file"), "whole");
    MakeFolder(folder.Path("gone/new"), error);
    EXPECT_EQ(error, std::errc::no_such_file_or_directory);
}

TEST_F(FileSystemTest, AFolderCanBeWrittenToWithoutAnythingBeingMade) {
    CheckWritable(folder.Path(), error);
    EXPECT_FALSE(error);
    EXPECT_TRUE(Folder::Open(folder.Path(), error).Entries(error).files.empty());
    CheckWritable(folder.Path("gone"), error);
    EXPECT_EQ(error, std::errc::no_such_file_or_directory);
}

TEST_F(FileSystemTest, AReadOnlyFolderCannotBeWrittenTo) {
    if (!test::CanBeOrdinaryUser())
        GTEST_SKIP() << test::kNoOrdinaryUser;
    std::filesystem::permissions(folder.Path(), std::filesystem::perms{0555});
    const test::OrdinaryUser user;
    CheckWritable(folder.Path(), error);
    EXPECT_EQ(error, std::errc::permission_denied);
}

TEST_F(FileSystemTest, MovingIntoPlaceReplacesAFile) {
    folder.Write("old", "old");
    MoveIntoPlace(folder.Write("new", "new"), folder.Path("old"), error);
    EXPECT_FALSE(error);
    EXPECT_EQ(folder.Read("old"), "new");
    EXPECT_FALSE(folder.Exists("new"));
}

TEST_F(FileSystemTest, NothingMovesIntoThePlaceOfAFolder) {
    folder.MakeFolder("old");
    MoveIntoPlace(folder.Write("new", "new"), folder.Path("old"), error);
    EXPECT_EQ(error, std::errc::is_a_directory);
    EXPECT_EQ(folder.Read("new"), "new");
}

TEST_F(FileSystemTest, APathWithANulIsRefusedAndNotCutThere) {
    const std::string file = folder.Write("file", "whole");
    const std::string behind("\0x", 2);
    const auto expectRefusal = [&] {
        EXPECT_EQ(error, std::errc::invalid_argument);
        error.clear();
    };
    Folder::Open(folder.Path() + behind, error);
    expectRefusal();
    EXPECT_FALSE(IsFile(file + behind, error));
    expectRefusal();
    EXPECT_FALSE(IsFolder(folder.Path() + behind, error));
    expectRefusal();
    LastModified(file + behind, error);
    expectRefusal();
    EXPECT_EQ(RealPath(file + behind, error), "");
    expectRefusal();
    RemoveFile(file + behind, error);
    expectRefusal();
    MakeFolder(folder.Path("made") + behind, error);
    expectRefusal();
    CheckWritable(folder.Path() + behind, error);
    expectRefusal();
    EXPECT_FALSE(folder.Exists("made"));
    MoveIntoPlace(file + behind, folder.Path("moved"), error);
    expectRefusal();
    MoveIntoPlace(file, folder.Path("moved") + behind, error);
    expectRefusal();
    for (const std::string& path : {file + behind, folder.Path("..") + behind}) {
        EXPECT_EQ(FullPath(path, error), path);
        expectRefusal();
    }
    EXPECT_EQ(folder.Read("file"), "whole");
    EXPECT_FALSE(folder.Exists("moved"));
}

TEST_F(FileSystemTest, TheProgramsFolderHoldsTheRunningProgram) {
    EXPECT_TRUE(IsFile(JoinPath(ProgramFolder(), MARLO_TEST_PROGRAM), error));
}

TEST_F(FileSystemTest, AFilesLastChangeIsInLocalTimeInWinterAndInSummer) {
    if (!test::MoveToCentralEurope())
        GTEST_SKIP() << test::kNoCentralEurope;
    const auto hourOf = [&](std::time_t moment) {
        const std::string path = folder.Write("file", "");
        folder.SetLastChange("file", moment);
        const std::tm modified = LastModified(path, error);
        EXPECT_FALSE(error);
        return modified.tm_mday * 100 + modified.tm_hour;
    };
    EXPECT_EQ(hourOf(1163546999), 1500) << "2006-11-14 23:29:59 UTC";
    EXPECT_EQ(hourOf(1152919799), 1501) << "2006-07-14 23:29:59 UTC";
}

TEST_F(FileSystemTest, AMissingFileOrAFolderHasNoLastChange) {
    LastModified(folder.Path("gone"), error);
    EXPECT_EQ(error, std::errc::no_such_file_or_directory);
    LastModified(folder.Path(), error);
    EXPECT_EQ(error, std::errc::no_such_file_or_directory);
}

}  // namespace
}  // namespace marlo::platform
