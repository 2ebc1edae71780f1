// Programs that are installed, in PREFIX/bin with PREFIX/share/marlo/installed.

#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include "tests/cli/CliTest.h"
#include "tests/support/System.h"

namespace marlo {
namespace {

using std::filesystem::perms;

class InstalledProgramTest : public test::CliTest {
  protected:
    InstalledProgramTest() {
        Install("usr");
        test::SetVariable("HOME", folder.MakeFolder("home"));
        test::SetVariable("XDG_DATA_HOME", "");
        test::ClearVariable("DISPLAY");
        test::ClearVariable("WAYLAND_DISPLAY");
    }

    /// Installs both programs below a prefix. @return the path of the terminal program.
    std::string Install(const std::string& prefix) const {
        folder.Write(prefix + "/share/marlo/installed", "");
        return Place(prefix + "/bin");
    }

    /// Puts both programs into a folder. @return the path of the terminal program.
    std::string Place(const std::string& name) const {
        folder.MakeFolder(name);
        std::filesystem::copy(MARLO_WINDOW, folder.Path(name + "/marlo"));
        std::filesystem::copy(MARLO_CLI, folder.Path(name + "/marlo-cli"));
        return folder.Path(name + "/marlo-cli");
    }

    test::ProgramResult Installed(std::vector<std::string> arguments) const {
        arguments.insert(arguments.begin(), folder.Path("usr/bin/marlo-cli"));
        return test::Run(arguments);
    }

    perms PermissionsOf(const std::string& name) const {
        return std::filesystem::status(folder.Path(name)).permissions();
    }

    /// Expects both programs to refuse to start, and to say so.
    void ExpectRefusal(const std::string& complaint) const {
        const auto result = Installed({"log"});
        EXPECT_EQ(result.exitCode, 1);
        EXPECT_EQ(result.out, "");
        EXPECT_EQ(result.error, "marlo-cli: " + complaint + "\n");
        const auto window = test::Run({folder.Path("usr/bin/marlo")});
        EXPECT_EQ(window.exitCode, 1);
        EXPECT_EQ(window.error, "marlo: " + complaint + "\n");
    }
};

TEST_F(InstalledProgramTest, KeepsWhatItWritesInAFolderThatItMakesForThisUserAlone) {
    AddProject("a.cpr", {{.name = "Delay"}});
    const auto result = Installed({"search", Songs()});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.error, "");
    EXPECT_EQ(folder.Read("home/.local/share/marlo/resultfiles/tln.csv"),
              "\"Delay\",\"VST\",\"On\"\r\n");
    EXPECT_TRUE(folder.Exists("home/.local/share/marlo/settings.ini"));
    for (const std::string made :
         {".local", ".local/share", ".local/share/marlo", ".local/share/marlo/resultfiles"})
        EXPECT_EQ(PermissionsOf("home/" + made), perms{0700}) << made;
    EXPECT_FALSE(folder.Exists("usr/bin/settings.ini"));
    EXPECT_FALSE(folder.Exists("usr/bin/resultfiles"));
}

TEST_F(InstalledProgramTest, TheEnvironmentMayNameAnotherFolder) {
    test::SetVariable("XDG_DATA_HOME", folder.Path("some/data"));
    EXPECT_EQ(Installed({"log"}).exitCode, 0);
    EXPECT_TRUE(folder.Exists("some/data/marlo/resultfiles"));
    EXPECT_FALSE(folder.Exists("home/.local"));
}

TEST_F(InstalledProgramTest, AFolderThatIsThereStaysAsItIs) {
    folder.Write("home/.local/share/marlo/ResultFiles/errorlog.txt", "old");
    std::filesystem::permissions(folder.Path("home/.local/share/marlo"), perms{0755});
    EXPECT_EQ(Installed({"log"}).exitCode, 0);
    EXPECT_FALSE(folder.Exists("home/.local/share/marlo/resultfiles"));
    EXPECT_EQ(PermissionsOf("home/.local/share/marlo"), perms{0755});
    EXPECT_EQ(folder.Read("home/.local/share/marlo/ResultFiles/errorlog.txt"), "old");
}

TEST_F(InstalledProgramTest, AnApplicationFolderThatIsGivenIsTakenAndNoneMade) {
    EXPECT_EQ(Installed({"log", "--app-folder", folder.Path("app")}).exitCode, 0);
    EXPECT_TRUE(folder.Exists("app/settings.ini"));
    const auto missing = Installed({"log", "--app-folder", folder.Path("gone")});
    EXPECT_EQ(missing.exitCode, 1);
    EXPECT_EQ(missing.error,
              "marlo-cli: the application folder " + folder.Path("gone") + " does not exist\n");
    EXPECT_FALSE(folder.Exists("home/.local"));
}

TEST_F(InstalledProgramTest, HelpVersionAndWrongUsageMakeNoFolder) {
    for (const std::string argument : {"--help", "--version", "--nonsense"}) {
        Installed({argument});
        Installed({"log", argument});
        test::Run({folder.Path("usr/bin/marlo"), argument});
    }
    EXPECT_FALSE(folder.Exists("home/.local"));
}

TEST_F(InstalledProgramTest, ALinkToItIsTheInstalledProgram) {
    test::MakeLink(folder.Path("usr/bin/marlo-cli"), folder.Path("link"));
    EXPECT_EQ(test::Run({folder.Path("link"), "log"}).exitCode, 0);
    EXPECT_TRUE(folder.Exists("home/.local/share/marlo/resultfiles"));
}

TEST_F(InstalledProgramTest, WithoutTheMarkOrInAnotherFolderItIsPortable) {
    folder.Write("opt/share/marlo/installed", "");
    folder.MakeFolder("local/share/marlo/installed");
    for (const std::string name : {"plain/bin", "local/bin", "opt/sbin", "opt/bin/sub"}) {
        EXPECT_EQ(test::Run({Place(name), "log"}).exitCode, 0);
        EXPECT_TRUE(folder.Exists(name + "/settings.ini")) << name;
    }
    EXPECT_FALSE(folder.Exists("home/.local"));
}

TEST_F(InstalledProgramTest, AFolderThatCannotBeMadeIsSaid) {
    const auto complaint = [&](const std::string& reason) {
        return "the folder " + folder.Path("home/.local/share/marlo/resultfiles") +
               " cannot be made (" + reason + ")";
    };
    folder.Write("home/.local/share", "a file");
    ExpectRefusal(complaint("File exists"));
    std::filesystem::remove(folder.Path("home/.local/share"));
    folder.Write("home/.local/share/marlo/resultfiles", "a file");
    ExpectRefusal(complaint("File exists"));
}

TEST_F(InstalledProgramTest, AHomeThatTheUserMayNotWriteToIsSaid) {
    if (!test::CanBeOrdinaryUser())
        GTEST_SKIP() << test::kNoOrdinaryUser;
    std::filesystem::permissions(folder.Path(), perms{0755});
    std::filesystem::permissions(folder.Path("home"), perms{0555});
    const test::OrdinaryUser user;
    ExpectRefusal("the folder " + folder.Path("home/.local/share/marlo/resultfiles") +
                  " cannot be made (Permission denied)");
}

TEST_F(InstalledProgramTest, ADataFolderThatIsThereAndCannotBeWrittenToIsSaidAndRead) {
    if (!test::CanBeOrdinaryUser())
        GTEST_SKIP() << test::kNoOrdinaryUser;
    ASSERT_EQ(Installed({"log"}).exitCode, 0);
    std::filesystem::permissions(folder.Path(), perms{0755});
    for (const std::string name :
         {".local", ".local/share", ".local/share/marlo", ".local/share/marlo/resultfiles"})
        std::filesystem::permissions(folder.Path("home/" + name), perms{0555});
    const test::OrdinaryUser user;
    const auto result = Installed({"log"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_NE(result.out, "");
    EXPECT_EQ(result.error,
              "marlo-cli: Settings and results cannot be saved in " +
                  folder.Path("home/.local/share/marlo") +
                  " (Permission denied).\n"
                  "marlo-cli: Make that folder writable, or name another folder with --app-folder "
                  "DIR.\n");
}

}  // namespace
}  // namespace marlo
