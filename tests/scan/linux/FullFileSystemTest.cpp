#include <array>
#include <filesystem>
#include <sched.h>
#include <set>
#include <string>
#include <sys/mount.h>
#include <unistd.h>
#include <vector>

#include <gtest/gtest.h>

#include "core/Records.h"
#include "scan/ResultFiles.h"
#include "tests/support/ApplicationTest.h"
#include "tests/support/PluginUse.h"

namespace marlo {
namespace {

/// The result folder as a small file system of its own, seen by this process only.
class FullFileSystemTest : public test::ApplicationTest {
  protected:
    void SetUp() override {
        const std::string size = "size=" + std::to_string(kPages * PageSize());
        isMounted = unshare(CLONE_NEWNS) == 0 &&
                    mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
                    mount("none", path.c_str(), "tmpfs", 0, size.c_str()) == 0;
        if (!isMounted)
            GTEST_SKIP() << "this user cannot mount file systems here";
    }

    void TearDown() override {
        if (isMounted)
            umount(path.c_str());
    }

    static std::size_t PageSize() { return static_cast<std::size_t>(sysconf(_SC_PAGESIZE)); }

    bool Create() { return CreateResultFiles(application, window, lists); }

    std::vector<std::string> ResultFiles() const {
        std::vector<std::string> contents;
        for (const std::string& name : names)
            contents.push_back(folder.Read("resultfiles/" + name));
        return contents;
    }

    /// Adds uses of plug-ins that take some pages in each result file.
    void AddUses() {
        for (std::size_t size = 0; size < 3 * PageSize(); size += 100) {
            const std::string key =
                QuotedFields({"a.cpr", std::to_string(size) + std::string(90, 'n'), "VST"});
            test::AddUse(lists, key, kOn);
        }
    }

    static constexpr std::size_t kPages = 16;

    const std::array<std::string, 3> names = {"results.csv", "fln.csv", "tln.csv"};
    std::string path = folder.Path("resultfiles");
    bool isMounted = false;
    SearchLists lists;
};

TEST_F(FullFileSystemTest, WithAnySpaceLeftEachResultFileIsOldOrNew) {
    AddUses();
    ASSERT_TRUE(Create());
    const std::vector<std::string> complete = ResultFiles();
    std::vector<std::string> logged;
    application.onErrorLogged = [&](const ErrorEntry& entry) {
        logged.push_back(entry.procedure + " " + std::to_string(entry.number));
    };
    std::set<std::size_t> counts;
    // Beside the three old files, which have a page each.
    for (std::size_t space = 0; space <= kPages - names.size(); ++space) {
        for (const std::string& name : names)
            folder.Write("resultfiles/" + name, "old");
        folder.Write("resultfiles/filler",
                     std::string((kPages - names.size() - space) * PageSize(), 'x'));
        logged.clear();
        const bool created = Create();
        std::filesystem::remove(folder.Path("resultfiles/filler"));
        const std::vector<std::string> contents = ResultFiles();
        std::size_t newOnes = 0;
        while (newOnes < names.size() && contents[newOnes] == complete[newOnes])
            ++newOnes;
        for (std::size_t i = newOnes; i < names.size(); ++i)
            EXPECT_EQ(contents[i], "old") << space << " " << names.at(i);
        for (const std::string& name : names)
            EXPECT_FALSE(folder.Exists("resultfiles/" + name + ".new")) << space << " " << name;
        EXPECT_EQ(created, newOnes == names.size()) << space;
        const std::vector<std::string> full = {"CreateResultFiles 61"};
        EXPECT_EQ(logged, created ? std::vector<std::string>() : full) << space;
        counts.insert(newOnes);
    }
    EXPECT_EQ(counts, (std::set<std::size_t>{0, 1, 2, 3})) << "the space ends in each of the files";
}

}  // namespace
}  // namespace marlo
