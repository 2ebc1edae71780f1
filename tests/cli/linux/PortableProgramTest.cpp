// The terminal program where it was unpacked, and may not write beside itself.

#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include "tests/cli/CliTest.h"
#include "tests/support/System.h"

namespace marlo {
namespace {

using std::filesystem::perms;

class PortableProgramTest : public test::CliTest {
  protected:
    PortableProgramTest() {
        folder.MakeFolder("marlo/resultfiles");
        std::filesystem::copy(MARLO_CLI, folder.Path("marlo/marlo-cli"));
        std::filesystem::permissions(folder.Path(), perms{0755});
        Portable({"log"});  // writes the settings
    }

    test::ProgramResult Portable(std::vector<std::string> arguments) const {
        arguments.insert(arguments.begin(), folder.Path("marlo/marlo-cli"));
        return test::Run(arguments);
    }

    void MakeReadOnly(const std::string& name) const {
        std::filesystem::permissions(folder.Path(name), perms{0555});
    }

    std::string Warning(const std::string& name) const {
        return "marlo-cli: Settings and results cannot be saved in " + folder.Path(name) +
               " (Permission denied).\n"
               "marlo-cli: Move the program's folder to where you can write, or name another "
               "folder with --app-folder DIR.\n";
    }
};

TEST_F(PortableProgramTest, SaysNothingWhereItCanWrite) {
    const auto result = Portable({"log"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.error, "");
    EXPECT_TRUE(folder.Exists("marlo/settings.ini"));
}

TEST_F(PortableProgramTest, SaysThatItCannotWriteBesideItselfAndReads) {
    if (!test::CanBeOrdinaryUser())
        GTEST_SKIP() << test::kNoOrdinaryUser;
    const std::string song = AddProject("a.cpr", {{.name = "Delay"}});
    std::filesystem::permissions(folder.Path("marlo"), perms::all);
    MakeReadOnly("marlo/resultfiles");
    {
        const test::OrdinaryUser user;
        EXPECT_EQ(Portable({"log"}).error, Warning("marlo/resultfiles"));
    }
    MakeReadOnly("marlo");
    const test::OrdinaryUser user;
    const auto result = Portable({"plugins", song});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_NE(result.out.find("Delay"), std::string::npos);
    EXPECT_EQ(result.error, Warning("marlo"));
}

TEST_F(PortableProgramTest, SaysNothingOfItWhereNothingIsToBeWrittenThere) {
    if (!test::CanBeOrdinaryUser())
        GTEST_SKIP() << test::kNoOrdinaryUser;
    MakeReadOnly("marlo");
    std::filesystem::permissions(folder.Path("app"), perms::all);
    const test::OrdinaryUser user;
    for (const std::vector<std::string>& arguments :
         {std::vector<std::string>{"--help"},
          {"--version"},
          {"log", "--help"},
          {"log", "--app-folder", folder.Path("app")}}) {
        const auto result = Portable(arguments);
        EXPECT_EQ(result.exitCode, 0);
        EXPECT_EQ(result.error, "");
    }
}

TEST_F(PortableProgramTest, AMissingResultFolderIsNotMade) {
    std::filesystem::remove(folder.Path("marlo/resultfiles"));
    EXPECT_EQ(Portable({"log"}).error, "");
    EXPECT_FALSE(folder.Exists("marlo/resultfiles"));
}

}  // namespace
}  // namespace marlo
