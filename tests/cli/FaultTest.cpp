// What the commands do when the machine under them fails: what they say, what stays.

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/cli/CliTest.h"
#include "tests/support/System.h"

namespace marlo {
namespace {

using std::filesystem::perms;
using Words = std::vector<std::string>;

/// A command on a machine that fails.
struct Failing {
    Words command;
    std::string says;  ///< a part of what it says; empty for a command that succeeds
};

class FaultCommandTest : public test::CliTest {
  protected:
    FaultCommandTest() {
        AddProject("a.cpr", {{.name = "Delay"}});
        folder.MakeFolder("vst");
    }

    void WriteResultFiles() const {
        const std::string use = "\"Delay\",\"VST\",\"On\"\r\n";
        folder.Write("app/resultfiles/tln.csv", use);
        const std::string project = "\"" + folder.Path("songs/a.cpr") + "\",";
        folder.Write("app/resultfiles/fln.csv", project + use);
        folder.Write("app/resultfiles/results.csv", project + use);
        folder.Write("app/resultfiles/installedplugins.csv", "\"VST\",\"Delay\",\"/d.dll\"\r\n");
    }

    /// Runs each command, which fails with exit code 1 where it says something.
    void Expect(const std::vector<Failing>& commands) const {
        for (const auto& [command, says] : commands) {
            const auto result = Marlo(command);
            const std::string shown = command.front() + ": " + result.error;
            EXPECT_EQ(result.exitCode, says.empty() ? 0 : 1) << shown;
            if (says.empty())
                EXPECT_EQ(result.error, "") << shown;
            else
                EXPECT_NE(result.error.find("marlo-cli: " + says), std::string::npos) << shown;
        }
    }

    /// Each path in the application folder with its bytes.
    std::map<std::string, std::string> Everything() const {
        std::map<std::string, std::string> all;
        for (const auto& entry :
             std::filesystem::recursive_directory_iterator(folder.Path("app"))) {
            const std::string name =
                "app/" + entry.path().lexically_relative(folder.Path("app")).generic_string();
            all[name] = entry.is_regular_file() ? folder.Read(name) : "";
        }
        return all;
    }

    /// Makes the application folder read-only for the ordinary user that the commands then have.
    void ExpectReadOnly(const std::vector<Failing>& commands) const {
        const auto before = Everything();
        for (const char* name : {"app/resultfiles", "app"})
            std::filesystem::permissions(folder.Path(name), perms{0555});
        {
            const test::OrdinaryUser user;
            Expect(commands);
        }
        EXPECT_EQ(Everything(), before);
        for (const char* name : {"app", "app/resultfiles"})
            std::filesystem::permissions(folder.Path(name), perms{0755});
    }

    std::string InUse(const std::string& name) const {
        return "The file " + folder.Path("app/resultfiles/" + name) +
               " is being used by another program.";
    }
};

TEST_F(FaultCommandTest, InAReadOnlyFolderEveryCommandSaysWhatItCannotKeep) {
    if (!test::CanBeOrdinaryUser())
        GTEST_SKIP() << test::kNoOrdinaryUser;
    WriteResultFiles();
    WriteSetting(4, folder.Write("sheets", ""));
    WriteSetting(50, folder.Path("vst"));
    const std::string denied = "WriteSetting: Permission denied (error 70)\n";
    ExpectReadOnly({{{"search", Songs()}, denied},
                    {{"search", Songs()}, InUse("results.csv")},
                    {{"installed"}, InUse("installedplugins.csv")},
                    {{"folders", "add", Songs()}, denied},
                    {{"options", "--ignore-off", "on"}, denied},
                    // What only reads does what it always does.
                    {{"report", "used"}, ""},
                    {{"report", "installed"}, ""},
                    {{"find", "Delay"}, ""},
                    {{"folders"}, ""},
                    {{"options"}, ""},
                    {{"log"}, ""},
                    {{"plugins", folder.Path("songs/a.cpr")}, ""}});
}

TEST_F(FaultCommandTest, InAReadOnlyFolderWithoutFilesEveryCommandThatNeedsThemFails) {
    if (!test::CanBeOrdinaryUser())
        GTEST_SKIP() << test::kNoOrdinaryUser;
    ExpectReadOnly({{{"search", Songs()}, "CreateResultFiles: Permission denied (error 70)\n"},
                    {{"search", Songs()}, "Errors occurred while creating the result files."},
                    {{"installed"}, "RefreshPlugins: Permission denied (error 70)\n"},
                    {{"report", "used"}, "ShowUsedPlugins: File not found (error 53)\n"},
                    {{"find", "Delay"}, "SearchResultFiles: File not found (error 53)\n"},
                    {{"folders"}, "getSetting: Permission denied (error 70)\n"},
                    {{"options"}, "getSetting: Permission denied (error 70)\n"},
                    {{"log"}, "getSetting: Permission denied (error 70)\n"},
                    {{"plugins", folder.Path("songs/a.cpr")}, ""}});
}

/// The routines that fail without a result folder.
std::vector<Failing> NeedResultFolder(const std::string& songs) {
    return {{{"search", songs}, "CreateResultFiles: "},
            {{"search", songs}, "Errors occurred while creating the result files."},
            {{"installed"}, "RefreshPlugins: "},
            {{"report", "used"}, "ShowUsedPlugins: "},
            {{"report", "unused"}, "ShowUnusedPlugins: "},
            {{"report", "installed"}, "ShowAllPlugins: "},
            {{"report", "uninstalled"}, "ShowUnusedPlugins: "},
            {{"find", "Delay"}, "SearchResultFiles: "}};
}

TEST_F(FaultCommandTest, WithoutAResultFolderEachCommandThatNeedsItFailsAndMakesNone) {
    std::filesystem::remove(folder.Path("app/resultfiles"));
    WriteSetting(50, folder.Path("vst"));
    Expect(NeedResultFolder(Songs()));
    EXPECT_FALSE(folder.Exists("app/resultfiles"));
}

TEST_F(FaultCommandTest, AFileInTheResultFoldersPlaceFailsEachCommandThatNeedsItAndStays) {
    std::filesystem::remove(folder.Path("app/resultfiles"));
    folder.Write("app/resultfiles", "a file");
    WriteSetting(50, folder.Path("vst"));
    Expect(NeedResultFolder(Songs()));
    EXPECT_EQ(folder.Read("app/resultfiles"), "a file");
}

TEST_F(FaultCommandTest, AFolderInTheSettingsPlaceIsSaidAndCountsAsNoSettings) {
    WriteResultFiles();
    folder.MakeFolder("app/settings.ini");
    const std::string notRead = "getSetting: Path/File access error (error 75)\n";
    const std::string notWritten = "WriteSetting: Path/File access error (error 75)\n";
    Expect({{{"installed"}, notRead},
            {{"installed"}, notWritten},
            {{"report", "used"}, notRead},
            {{"find", "Delay"}, notRead},
            {{"folders"}, notRead},
            {{"options"}, notRead},
            {{"options", "--ignore-off", "on"}, notWritten},
            {{"log"}, notRead}});
    EXPECT_TRUE(std::filesystem::is_empty(folder.Path("app/settings.ini")));
    // They do what they can without.
    EXPECT_NE(Marlo({"report", "used"}).out.find("\n* Delay"), std::string::npos);
    EXPECT_NE(Marlo({"options"}).out.find("ignore-off:     off\n"), std::string::npos);
    EXPECT_EQ(Marlo({"search", Songs()}).out, "1 project, 1 plug-in in them, used 1 time.\n");
}

TEST_F(FaultCommandTest, WhatIsSaidOfTheSettingsStandsBeforeTheOptionsOnATerminal) {
    if (!test::HasUnixShell())
        GTEST_SKIP() << test::kNoUnixShell;
    folder.MakeFolder("app/settings.ini");
    auto program = test::Program::StartInTerminal(CommandLine({"options"}));
    const std::string seen = program.ReadAll();
    EXPECT_EQ(program.Wait(), 1);
    EXPECT_TRUE(
        seen.ends_with("\r\ncsv-program:    (none)\r\n"
                       "ignore-directx: off\r\nignore-off:     off\r\n"))
        << seen;
}

TEST_F(FaultCommandTest, ABrokenProjectsNameCannotActOnTheTerminal) {
    if (!test::HasUnixShell())
        GTEST_SKIP() << test::kNoUnixShell;
    AddBrokenProject("b\x1b[31m.cpr");
    auto program = test::Program::StartInTerminal(CommandLine({"search", Songs()}));
    std::string seen = program.ReadAll();
    EXPECT_EQ(program.Wait(), 1);
    EXPECT_NE(seen.find("b\\x1B[31m.cpr : Bad record number (error 63)"), std::string::npos)
        << seen;
    const std::string clearing = "\r\x1b[K";  // the program's own
    for (std::size_t at = seen.find(clearing); at != std::string::npos; at = seen.find(clearing))
        seen.erase(at, clearing.size());
    EXPECT_EQ(seen.find('\x1b'), std::string::npos) << seen;
}

}  // namespace
}  // namespace marlo
