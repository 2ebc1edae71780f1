#include <optional>
#include <string>

#include <gtest/gtest.h>

#include "platform/FileSystem.h"
#include "platform/Installation.h"

namespace marlo::platform {
namespace {

TEST(PathTest, EitherSeparatorEndsAFolder) {
    EXPECT_EQ(JoinPath("C:\\", "a.cpr"), "C:\\a.cpr");
    EXPECT_EQ(JoinPath("C:/songs/", "a.cpr"), "C:/songs/a.cpr");
    EXPECT_EQ(JoinPath("C:\\songs", "a.cpr"), "C:\\songs\\a.cpr");
}

TEST(PathTest, AFullPathHasADriveAndBackslashes) {
    std::error_code error;
    EXPECT_EQ(FullPath("C:/songs/./old/../a.cpr", error), "C:\\songs\\a.cpr");
    EXPECT_EQ(FullPath("C:\\songs\\", error), "C:\\songs");
    EXPECT_EQ(FullPath("C:\\", error), "C:\\") << "without the separator it is another folder";
    EXPECT_EQ(FullPath("\\\\studio\\songs\\a.cpr", error), "\\\\studio\\songs\\a.cpr");
    EXPECT_EQ(FullPath("C:\\\xD0\x9F\xD1\x80\\\xE6\x9B\xB2 \xF0\x9F\x8E\xB9", error),
              "C:\\\xD0\x9F\xD1\x80\\\xE6\x9B\xB2 \xF0\x9F\x8E\xB9");
    EXPECT_FALSE(error);
}

TEST(PathTest, ProgramsKeepWhatTheyHaveInTheirOwnFolder) {
    EXPECT_EQ(InstallPrefix(), std::nullopt);
    EXPECT_EQ(UserDataFolder(), std::nullopt);
}

TEST(ParentPathTest, IsWhatStandsInFrontOfTheLastBackslash) {
    EXPECT_EQ(ParentPath("C:\\vst\\Reverb.dll"), "C:\\vst");
    EXPECT_EQ(ParentPath("C:\\Reverb.dll"), "C:");
    EXPECT_EQ(ParentPath("\\Reverb.dll"), "");
    EXPECT_EQ(ParentPath("C:\\a/b.dll"), "C:");
}

TEST(ParentPathTest, APathWithoutBackslashHasNone) {
    EXPECT_EQ(ParentPath("C:/vst/Reverb.dll"), std::nullopt);
    EXPECT_EQ(ParentPath("Reverb.dll"), std::nullopt);
    EXPECT_EQ(ParentPath(""), std::nullopt);
}

}  // namespace
}  // namespace marlo::platform
