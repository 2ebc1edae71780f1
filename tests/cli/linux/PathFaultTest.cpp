// Links that lead to themselves, and paths as long as they can be and longer.

#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include "tests/cli/CliTest.h"

namespace marlo {
namespace {

class PathFaultTest : public test::CliTest {
  protected:
    /// Makes folders of long names in each other, below where the process is, and goes there.
    static void Descend(int depth) {
        const std::string name(200, 'n');
        for (int i = 0; i < depth; ++i) {
            std::filesystem::create_directory(name);
            std::filesystem::current_path(name);
        }
    }

    /// The other way, taking the folders away.
    static void Ascend(int depth) {
        for (int i = 0; i < depth; ++i) {
            std::filesystem::current_path("..");
            std::filesystem::remove_all(std::string(200, 'n'));
        }
    }
};

TEST_F(PathFaultTest, SettingsThatAreALinkToThemselvesAreSaidAndTheLinkStays) {
    AddProject("a.cpr", {{.name = "Delay"}});
    const std::string path = folder.Path("app/settings.ini");
    std::filesystem::create_symlink("settings.ini", path);
    const auto result = Marlo({"search", Songs()});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.error.find("marlo-cli: getSetting: Path/File access error (error 75)\n"), 0U);
    EXPECT_NE(result.error.find("WriteSetting: Path/File access error (error 75)\n"),
              std::string::npos);
    EXPECT_EQ(std::filesystem::read_symlink(path), "settings.ini");
    EXPECT_EQ(Result("tln.csv"), "\"Delay\",\"VST\",\"On\"\r\n");
}

TEST_F(PathFaultTest, AResultFolderThatIsALinkToItselfIsSaidAndTheLinkStays) {
    AddProject("a.cpr", {{.name = "Delay"}});
    const std::string path = folder.Path("app/resultfiles");
    std::filesystem::remove(path);
    std::filesystem::create_symlink("resultfiles", path);
    const auto result = Marlo({"search", Songs()});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_NE(result.error.find("CreateResultFiles: Path/File access error (error 75)\n"),
              std::string::npos)
        << result.error;
    EXPECT_EQ(Marlo({"report", "used"}).exitCode, 1);
    EXPECT_EQ(std::filesystem::read_symlink(path), "resultfiles");
}

TEST_F(PathFaultTest, APathOf4000BytesIsSearchedListedAndFound) {
    std::string path = Songs();
    while (path.size() < 3750)
        path += "/" + std::string(200, 'n');
    std::filesystem::create_directories(path);
    path += "/" + std::string(4000 - path.size() - std::string("/.cpr").size(), 'p') + ".cpr";
    ASSERT_EQ(path.size(), 4000U);
    AddProject("a.cpr", {{.name = "Delay"}});
    std::filesystem::copy(folder.Path("songs/a.cpr"), path);
    EXPECT_EQ(Marlo({"search", Songs()}).exitCode, 0);
    const std::string line = "\"" + path + "\",\"Delay\",\"VST    \",\"On\"\r\n";
    EXPECT_TRUE(Result("results.csv").ends_with(line));
    EXPECT_TRUE(Result("fln.csv").ends_with(line));
    folder.Write("app/resultfiles/installedplugins.csv", "");
    const auto found = Marlo({"find", "Delay"});
    EXPECT_EQ(found.exitCode, 0) << found.error;
    EXPECT_NE(found.out.find(path), std::string::npos);
}

TEST_F(PathFaultTest, ATreeBeyondTheLongestPathIsSaidAndTheOldResultsStay) {
    constexpr int depth = 22;  // of 200 bytes each: more than a path's 4,096
    const auto home = std::filesystem::current_path();
    std::filesystem::current_path(Songs());
    Descend(depth);
    folder.Write("app/resultfiles/results.csv", "old");
    const auto result = Marlo({"search", Songs()});
    Ascend(depth);
    std::filesystem::current_path(home);
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.error,
              "marlo-cli: GetPlugins4AllProjects: Bad file name or number (error 52)\n"
              "marlo-cli: An unexpected error occurred.\n");
    EXPECT_EQ(Result("results.csv"), "old");
    EXPECT_TRUE(std::filesystem::is_empty(Songs())) << "the test has left its folders behind";
}

}  // namespace
}  // namespace marlo
