#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include "tests/cli/CliTest.h"
#include "tests/support/System.h"

namespace marlo {
namespace {

using test::Program;

class InstalledCommandTest : public test::CliTest {
  protected:
    std::string List() const { return Result("installedplugins.csv"); }
};

TEST_F(InstalledCommandTest, WithoutAFolderItSaysHowToAddOne) {
    const auto result = Marlo({"installed"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.out, "0 DirectX plug-ins, 0 VST plug-ins.\n");
    EXPECT_NE(result.error.find("marlo-cli folders add DIR"), std::string::npos);
    EXPECT_EQ(List(), "");
}

TEST_F(InstalledCommandTest, TheProgressHasTwoPhases) {
    folder.Write("vst/Echo.dll", "");
    Marlo({"folders", "add", folder.Path("vst")});
    EXPECT_EQ(Marlo({"installed", "--progress"}).error,
              "Searching for installed DirectX Plugins...\n"
              "Searching for installed VST Plugins... " +
                  folder.Path("vst") + "\n");
}

TEST_F(InstalledCommandTest, TheInterruptKeyCancelsAndKeepsWhatWasFound) {
    if (!test::HasUnixShell())
        GTEST_SKIP() << test::kNoUnixShell;
    const std::string found = folder.Write("vst/Found.dll", "");
    for (int i = 0; i < 20000; ++i)
        std::filesystem::create_directories(folder.Path("vst/" + std::to_string(i) + "/sub"));
    folder.Write("vst/19999/sub/Not reached.dll", "");
    Marlo({"folders", "add", folder.Path("vst")});
    auto program = Program::StartInTerminal(CommandLine({"installed"}));
    program.ReadUntil("/vst/");  // a folder in it, after the files in it
    program.Type("\x03");
    const std::string said = program.ReadAll();
    EXPECT_EQ(program.Wait(), 130);
    EXPECT_NE(said.find("Cancelled"), std::string::npos) << said;
    EXPECT_TRUE(List().starts_with("\"VST\",\"Found\",\"" + found + "\"\r\n"));
    EXPECT_NE(Setting(15), "");
}

TEST_F(InstalledCommandTest, AFailureIsSaidAndTheExitCodeIs1) {
    folder.MakeFolder("app/resultfiles/installedplugins.csv");
    const auto result = Marlo({"installed"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.out, "");
    EXPECT_NE(result.error.find("RefreshPlugins: Path/File access error (error 75)"),
              std::string::npos);
    EXPECT_NE(result.error.find("An unexpected error occurred."), std::string::npos);
}

class FoldersCommandTest : public test::CliTest {
  protected:
    std::string List() const {
        const auto result = Marlo({"folders"});
        EXPECT_EQ(result.exitCode, 0);
        return result.out;
    }
};

TEST_F(FoldersCommandTest, FoldersAreAddedListedAndRemoved) {
    const std::string a = folder.MakeFolder("a");
    const std::string b = folder.MakeFolder("b");
    const std::string c = folder.MakeFolder("c");
    for (const auto& path : {a, b, c})
        EXPECT_EQ(Marlo({"folders", "add", path}).exitCode, 0);
    EXPECT_EQ(List(), a + "\n" + b + "\n" + c + "\n");
    EXPECT_EQ(Marlo({"folders", "list"}).out, List());
    EXPECT_EQ(Marlo({"folders", "remove", b}).exitCode, 0);
    EXPECT_EQ(List(), a + "\n" + c + "\n");
    EXPECT_EQ(Setting(52), "");
}

TEST_F(FoldersCommandTest, APathIsKeptInFullAndFoundAgain) {
    folder.MakeFolder("a");
    EXPECT_EQ(Marlo({"folders", "add", folder.Path("a/../a/")}).exitCode, 0);
    EXPECT_EQ(Setting(50), std::filesystem::canonical(folder.Path("a")).string());
    EXPECT_EQ(Marlo({"folders", "remove", folder.Path("a/")}).exitCode, 0);
    EXPECT_EQ(List(), "");
}

TEST_F(FoldersCommandTest, AFolderInTheListIsNotAddedAgain) {
    Marlo({"folders", "add", folder.MakeFolder("a")});
    const auto result = Marlo({"folders", "add", folder.Path("a")});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.error, "marlo-cli: folders: Path is already in the list\n");
    EXPECT_EQ(List(), folder.Path("a") + "\n");
}

TEST_F(FoldersCommandTest, WhatIsNoFolderOrCannotBeKeptIsRefused) {
    EXPECT_EQ(Marlo({"folders", "add", folder.Path("gone")}).error,
              "marlo-cli: folders: " + folder.Path("gone") + ": no such folder\n");
    EXPECT_EQ(Marlo({"folders", "add", folder.Write("file", "")}).exitCode, 1);
    EXPECT_EQ(Marlo({"folders", "add", folder.MakeFolder(std::string(250, 'x'))}).exitCode, 1);
    EXPECT_EQ(Marlo({"folders", "remove", folder.Path("gone")}).error,
              "marlo-cli: folders: " + folder.Path("gone") + ": not in the list\n");
    EXPECT_EQ(List(), "");
}

TEST_F(FoldersCommandTest, AFolderThatHasGoneIsListedAndSaidAndCanBeRemoved) {
    Marlo({"folders", "add", folder.MakeFolder("a")});
    std::filesystem::remove(folder.Path("a"));
    const auto result = Marlo({"folders"});
    EXPECT_EQ(result.out, folder.Path("a") + "\n");
    EXPECT_EQ(result.error, "marlo-cli: folders: " + folder.Path("a") + ": no such folder now\n");
    EXPECT_EQ(Marlo({"folders", "remove", folder.Path("a")}).exitCode, 0);
    EXPECT_EQ(List(), "");
}

TEST_F(FoldersCommandTest, SettingsThatCannotBeWrittenAreSaid) {
    folder.MakeFolder("app/settings.ini");
    EXPECT_EQ(Marlo({"folders", "add", folder.MakeFolder("a")}).exitCode, 1);
    EXPECT_EQ(Marlo({"folders"}).exitCode, 1);
}

class OptionsCommandTest : public test::CliTest {};

TEST_F(OptionsCommandTest, AllOptionsAreShown) {
    const auto result = Marlo({"options"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.error, "");
    EXPECT_EQ(result.out, "csv-program:    (none)\nignore-directx: off\nignore-off:     off\n");
}

TEST_F(OptionsCommandTest, OptionsAreSetAndStaySet) {
    const std::string program = folder.Write("sheets", "");
    const std::string expected =
        "csv-program:    " + program + "\nignore-directx: on\nignore-off:     on\n";
    EXPECT_EQ(
        Marlo({"options", "--csv-program", program, "--ignore-directx", "on", "--ignore-off", "on"})
            .out,
        expected);
    EXPECT_EQ(Marlo({"options"}).out, expected);
    EXPECT_EQ(Setting(4), program);
    EXPECT_EQ(Setting(20), "1");
    EXPECT_EQ(Setting(21), "1");
    Marlo({"options", "--ignore-off", "off"});
    EXPECT_EQ(Setting(20), "1");
    EXPECT_EQ(Setting(21), "0");
}

TEST_F(OptionsCommandTest, AProgramThatIsNotThereIsRefused) {
    const auto result = Marlo({"options", "--csv-program", folder.Path("gone")});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.error, "marlo-cli: options: " + folder.Path("gone") + ": no such program\n");
    EXPECT_EQ(Marlo({"options", "--csv-program", ""}).exitCode, 1);
}

class LogCommandTest : public test::CliTest {};

TEST_F(LogCommandTest, BeforeAnyRunTheLogIsEmpty) {
    EXPECT_EQ(Marlo({"log"}).out,
              "Search SX Projects\n  Date:\n  Path:\nFind installed Plugins\n  Date:\n");
}

TEST_F(LogCommandTest, TheLastRunsAreTold) {
    Marlo({"search", Songs(), "--no-subfolders"});
    Marlo({"installed"});
    const auto result = Marlo({"log"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.out, "Search SX Projects\n  Date: " + Setting(11) + "\n  Path: " + Songs() +
                              " - Excluding sub folders\nFind installed Plugins\n  Date: " +
                              Setting(15) + "\n");
    EXPECT_EQ(Setting(15).size(), std::string("mm-dd-yyyy hh:mm:ss").size());
}

}  // namespace
}  // namespace marlo
