#include <array>
#include <chrono>
#include <filesystem>
#include <random>
#include <set>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include "tests/cli/CliTest.h"

namespace marlo {
namespace {

using test::Program;

const int kProjects = test::kIsSanitized ? 2000 : test::TakesItsTime() ? 10000 : 4000;
constexpr int kLibraries = 20000;
/// In each of the shorter tests; twice as many in the search. Each takes long under Wine and
/// with sanitizers.
const std::size_t kKills =
    test::TakesItsTime() && test::HasUnixShell() && !test::kIsSanitized ? 50 : 15;
const std::vector<std::string> kFiles = {"results.csv", "fln.csv", "tln.csv"};

class KillTest : public test::CliTest {
  protected:
    /// Whether a test should go on, as its kills came all before or all after the writing.
    /// @param seen what was there after the kills.
    static bool IsUndecided(const std::set<bool>& seen, std::size_t kills) {
        return seen.size() < 2 && kills < 20 * kKills;
    }

    /// Makes a library whose projects all use a plug-in of its own name. @return its folder.
    std::string MakeLibrary(const std::string& name) const {
        std::string bytes(100, '\0');
        for (int i = 0; i < 20; ++i)
            bytes += tools::PluginBytes({.name = name + std::to_string(i), .chunkSize = 0});
        const std::string first = folder.Write(name + "/0.cpr", bytes);
        for (int i = 1; i < kProjects; ++i)
            std::filesystem::create_hard_link(first,
                                              folder.Path(name + "/" + std::to_string(i) + ".cpr"));
        return folder.Path(name);
    }

    /// Starts the program and kills it some time later, at the latest after `most`.
    void RunAndKill(const std::vector<std::string>& arguments, std::chrono::microseconds most) {
        auto program = Program::Start(CommandLine(arguments));
        std::this_thread::sleep_for(most * (random() % 1000) / 1000);
        program.Kill();
        program.Wait();
    }

    std::filesystem::file_time_type LastWritten() const {
        return std::filesystem::last_write_time(folder.Path("app/resultfiles/results.csv"));
    }
    std::string NewVersion() const { return folder.Path("app/resultfiles/results.csv.new"); }

    /// Runs a search to its end. @return the three files, in order.
    std::vector<std::string> SearchWhole(const std::string& library) const {
        EXPECT_EQ(Marlo({"search", library}).exitCode, 0);
        std::vector<std::string> texts;
        for (const std::string& name : kFiles)
            texts.push_back(Result(name));
        return texts;
    }

    std::mt19937 random{20261115};
};

TEST_F(KillTest, AKillAtAnyMomentLeavesEveryResultFileWhole) {
    const std::vector<std::string> libraries = {MakeLibrary("one"), MakeLibrary("two")};
    const auto start = std::chrono::steady_clock::now();
    std::vector<std::vector<std::string>> whole;
    for (const std::string& library : libraries)
        whole.push_back(SearchWhole(library));
    const auto duration = (std::chrono::steady_clock::now() - start) / 2;
    ASSERT_NE(whole[0], whole[1]);

    std::set<bool> changed;
    for (std::size_t kill = 0; kill < 2 * kKills || IsUndecided(changed, kill); ++kill) {
        const std::string before = Result("results.csv");
        const auto lastWritten = LastWritten();
        std::filesystem::remove(NewVersion());
        auto program = Program::Start(CommandLine({"search", libraries[kill % 2]}));
        // Half of the kills come while the files are written, the rest whenever they come.
        const bool duringWriting = kill % 4 < 2;
        while (duringWriting && program.IsRunning() && !std::filesystem::exists(NewVersion()) &&
               LastWritten() == lastWritten)
            std::this_thread::sleep_for(std::chrono::microseconds(200));
        const auto most = std::chrono::duration_cast<std::chrono::microseconds>(
            duringWriting ? duration / 4 : duration);
        std::this_thread::sleep_for(most * (random() % 1000) / 1000);
        program.Kill();
        program.Wait();
        for (std::size_t i = 0; i < kFiles.size(); ++i) {
            const std::string text = Result(kFiles[i]);
            ASSERT_TRUE(text == whole[0][i] || text == whole[1][i])
                << kFiles[i] << " is torn after kill " << kill;
        }
        changed.insert(Result("results.csv") != before);
    }
    EXPECT_EQ(changed.size(), 2U) << "the kills came all before or all after the writing";

    EXPECT_EQ(SearchWhole(libraries[0]), whole[0]);
    EXPECT_FALSE(std::filesystem::exists(NewVersion()));
}

TEST_F(KillTest, AKillDuringTheInventoryLeavesAWholeListOrNone) {
    const std::string first = folder.Write("vst/Effect 0.dll", "MZ");
    for (int i = 1; i < kLibraries; ++i)
        std::filesystem::create_hard_link(first,
                                          folder.Path("vst/Effect " + std::to_string(i) + ".dll"));
    ASSERT_EQ(Marlo({"folders", "add", folder.Path("vst")}).exitCode, 0);
    const auto start = std::chrono::steady_clock::now();
    ASSERT_EQ(Marlo({"installed"}).exitCode, 0);
    const auto duration = std::chrono::duration_cast<std::chrono::microseconds>(
        std::chrono::steady_clock::now() - start);
    const std::string whole = Result("installedplugins.csv");

    std::set<bool> isThere;
    for (std::size_t kill = 0; kill < kKills || IsUndecided(isThere, kill); ++kill) {
        RunAndKill({"installed"}, 2 * duration);
        const bool isListed = folder.Exists("app/resultfiles/installedplugins.csv");
        ASSERT_TRUE(!isListed || Result("installedplugins.csv") == whole) << "after kill " << kill;
        isThere.insert(isListed);
    }
    EXPECT_EQ(isThere.size(), 2U) << "the kills came all before or all after the writing";

    EXPECT_EQ(Marlo({"installed"}).exitCode, 0);
    EXPECT_EQ(Result("installedplugins.csv"), whole);
}

TEST_F(KillTest, AKillWhileSettingsAreWrittenLeavesEachOldOrNew) {
    const std::array<std::string, 2> programs = {folder.Write("sheets", "program"),
                                                 folder.Write("other sheets", "program")};
    const std::array<std::string, 2> flags = {"on", "off"};
    const auto set = [&](std::size_t which) {
        return std::vector<std::string>{"options",      "--csv-program", programs.at(which),
                                        "--ignore-off", flags.at(which), "--ignore-directx",
                                        flags.at(which)};
    };
    ASSERT_EQ(Marlo(set(0)).exitCode, 0);
    const auto start = std::chrono::steady_clock::now();
    ASSERT_EQ(Marlo(set(1)).exitCode, 0);
    const auto duration = std::chrono::duration_cast<std::chrono::microseconds>(
        std::chrono::steady_clock::now() - start);
    const std::size_t size = folder.Read("app/settings.ini").size();

    std::set<bool> changed;
    for (std::size_t kill = 0; kill < kKills || IsUndecided(changed, kill); ++kill) {
        const std::string before = Setting(4);
        RunAndKill(set(before == programs[0] ? 1 : 0), 2 * duration);
        EXPECT_EQ(folder.Read("app/settings.ini").size(), size);
        const std::string program = Setting(4);
        ASSERT_TRUE(program == programs[0] || program == programs[1]) << "after kill " << kill;
        changed.insert(program != before);
        for (const std::size_t flag : {20, 21})
            ASSERT_TRUE(Setting(flag) == "1" || Setting(flag) == "0") << "after kill " << kill;
    }
    EXPECT_EQ(changed.size(), 2U) << "the kills came all before or all after the writing";

    ASSERT_EQ(Marlo(set(0)).exitCode, 0);
    EXPECT_EQ(Setting(4), programs[0]);
    EXPECT_EQ(Setting(20), "1");
    EXPECT_EQ(Setting(21), "1");
}

TEST_F(KillTest, AKillWhileTheFoldersChangeLeavesTheOldListOrTheNew) {
    constexpr std::size_t count = 14;
    std::vector<std::string> whole;
    for (std::size_t i = 0; i < count; ++i) {
        whole.push_back(folder.MakeFolder("vst " + std::to_string(i)));
        ASSERT_EQ(Marlo({"folders", "add", whole.back()}).exitCode, 0);
    }
    const std::vector<std::string> others(whole.begin() + 1, whole.end());
    const auto list = [&] {
        std::vector<std::string> folders;
        for (std::size_t record = 50; !Setting(record).empty(); ++record)
            folders.push_back(Setting(record));
        return folders;
    };
    // Without the first folder, every other one has another record.
    const auto start = std::chrono::steady_clock::now();
    ASSERT_EQ(Marlo({"folders", "remove", whole.front()}).exitCode, 0);
    const auto duration = std::chrono::duration_cast<std::chrono::microseconds>(
        std::chrono::steady_clock::now() - start);
    ASSERT_EQ(list(), others);

    std::set<bool> changed;
    for (std::size_t kill = 0; kill < kKills || IsUndecided(changed, kill); ++kill) {
        for (std::size_t i = 0; i < whole.size(); ++i)
            WriteSetting(50 + i, whole[i]);
        RunAndKill({"folders", "remove", whole.front()}, 2 * duration);
        ASSERT_TRUE(list() == whole || list() == others) << "after kill " << kill;
        changed.insert(list() == others);
    }
    EXPECT_EQ(changed.size(), 2U) << "the kills came all before or all after the writing";

    const std::string added = folder.MakeFolder("vst");
    std::vector<std::string> longer = whole;
    longer.push_back(added);
    for (std::size_t kill = 0; kill < kKills; ++kill) {
        for (std::size_t i = 0; i <= whole.size(); ++i)
            WriteSetting(50 + i, i < whole.size() ? whole[i] : "");
        RunAndKill({"folders", "add", added}, 2 * duration);
        ASSERT_TRUE(list() == whole || list() == longer) << "after kill " << kill;
    }
}

}  // namespace
}  // namespace marlo
