#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include "platform/FileSystem.h"
#include "tests/support/TempFolder.h"

namespace marlo::platform {
namespace {

TEST(PathTest, APathInTheRootFolderHasOneSeparator) {
    EXPECT_EQ(JoinPath("/", "a.cpr"), "/a.cpr");
}

TEST(PathTest, AFullPathGoesUpFromWhereALinkLeads) {
    const test::TempFolder folder;
    folder.MakeFolder("real/sub");
    std::filesystem::create_directory_symlink("real/sub", folder.Path("link"));
    std::error_code error;
    EXPECT_EQ(FullPath(folder.Path("link/../a"), error), folder.Path("real/a"));
    EXPECT_EQ(FullPath("/", error), "/");
    EXPECT_EQ(FullPath("/..", error), "/");
    EXPECT_FALSE(error);
}

TEST(PathTest, AFullPathKeepsTheLinksThatItDoesNotGoUpFrom) {
    const test::TempFolder folder;
    folder.MakeFolder("real/sub");
    std::filesystem::create_directory_symlink("real", folder.Path("link"));
    std::error_code error;
    EXPECT_EQ(FullPath(folder.Path("link/sub/../a"), error), folder.Path("link/a"));
    EXPECT_EQ(FullPath(folder.Path("link/gone/../a"), error), folder.Path("link/a"));
    EXPECT_FALSE(error);
}

TEST(FullPathTest, APathThatCannotBeResolvedIsGivenBack) {
    const test::TempFolder folder;
    std::filesystem::create_symlink("loop", folder.Path("loop"));
    const std::string path = folder.Path("loop") + "/../a";
    std::error_code error;
    EXPECT_EQ(FullPath(path, error), path);
    EXPECT_EQ(error, std::errc::too_many_symbolic_link_levels);
}

TEST(ParentPathTest, IsWhatStandsInFrontOfTheLastSeparator) {
    EXPECT_EQ(ParentPath("/vst/Reverb.dll"), "/vst");
    EXPECT_EQ(ParentPath("C:\\vst\\Reverb.dll"), "C:\\vst");
    EXPECT_EQ(ParentPath("vst/Reverb.dll"), "vst");
    EXPECT_EQ(ParentPath("/Reverb.dll"), "/");
    EXPECT_EQ(ParentPath("\\Reverb.dll"), "");
}

TEST(ParentPathTest, APathWithoutSeparatorHasNone) {
    EXPECT_EQ(ParentPath("Reverb.dll"), std::nullopt);
    EXPECT_EQ(ParentPath(""), std::nullopt);
}

TEST(ParentPathTest, ABackslashInAPathFromTheRootIsACharacter) {
    EXPECT_EQ(ParentPath("/vst/AC\\DC.dll"), "/vst");
}

}  // namespace
}  // namespace marlo::platform
