#include <algorithm>
#include <filesystem>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "core/FolderWalk.h"
#include "core/RunTimeError.h"
#include "tests/support/ApplicationTest.h"
#include "tests/support/System.h"

namespace marlo {
namespace {

using Paths = std::vector<std::string>;

/// Writes down what it meets; skips what cannot be opened.
class RecordingVisitor final : public FolderVisitor {
  public:
    bool EnterFolder(const std::string& path) override {
        folders.push_back(path);
        return folders.size() <= mostFolders;
    }

    void CannotOpen(const std::string& path, const std::error_code& error) override {
        unopened.emplace_back(path, error);
    }

    void VisitFile(const std::string& path, const std::string& name) override {
        EXPECT_TRUE(path.ends_with(name)) << path;
        files.push_back(path);
        if (onFile)
            onFile();
    }

    Paths folders;
    Paths files;
    std::vector<std::pair<std::string, std::error_code>> unopened;
    std::size_t mostFolders = 1000;
    std::function<void()> onFile;
};

class FolderWalkTest : public test::ApplicationTest {
  protected:
    FolderWalkTest() { folder.MakeFolder("songs"); }

    bool Walk(const std::string& start = "songs", bool includeSubfolders = true) {
        return WalkFolder(application,
                          {.start = folder.Path(start),
                           .includeSubfolders = includeSubfolders,
                           .types = {"CPR File"}},
                          visitor);
    }

    /// The files visited, from the temporary folder on, with slashes.
    Paths Files() const { return Shortened(visitor.files); }

    /// The files that a walk through "songs" visits.
    Paths Visited(bool includeSubfolders = true) {
        EXPECT_TRUE(Walk("songs", includeSubfolders));
        return Files();
    }

    Paths Shortened(Paths paths) const {
        for (std::string& path : paths) {
            path.erase(0, folder.Path().size() + 1);
            std::replace(path.begin(), path.end(), '\\', '/');
        }
        return paths;
    }

    void Link(const std::string& target, const std::string& name) const {
        ASSERT_TRUE(test::MakeLink(target, folder.Path(name)));
    }

    RecordingVisitor visitor;
};

/// Links that are told from what they lead to.
class LinkWalkTest : public FolderWalkTest {
  protected:
    void SetUp() override {
        if (!test::CanTellLinks() || !test::MakeLink(".", folder.Path("trial")))
            GTEST_SKIP() << test::kNoLinks;
    }
};

TEST_F(FolderWalkTest, FilesAndFoldersComeInTheOrderOfTheirNamesWithoutRegardToCase) {
    for (const char* name : {"b/1.cpr", "A/2.cpr", "A/sub/3.cpr", "C.cpr", "a.cpr", "x.txt"})
        folder.Write(std::string("songs/") + name, "");
    EXPECT_EQ(Visited(), (Paths{"songs/a.cpr", "songs/C.cpr", "songs/A/2.cpr", "songs/A/sub/3.cpr",
                                "songs/b/1.cpr"}));
    EXPECT_EQ(Shortened(visitor.folders), (Paths{"songs", "songs/A", "songs/A/sub", "songs/b"}));
}

TEST_F(FolderWalkTest, AFileIsVisitedBeforeTheNextIsAskedAbout) {
    folder.Write("songs/a.cpr", "");
    folder.Write("songs/b.cpr", "");
    desktop.unreadable = {"b.cpr"};
    EXPECT_THROW(Walk(), RunTimeError);
    EXPECT_EQ(Files(), Paths{"songs/a.cpr"});
}

TEST_F(FolderWalkTest, TheVisitorEndsTheWalk) {
    folder.Write("songs/a.cpr", "");
    folder.Write("songs/sub/b.cpr", "");
    folder.MakeFolder("songs/sub/deeper");
    visitor.mostFolders = 1;
    EXPECT_FALSE(Walk());
    EXPECT_EQ(Files(), Paths{"songs/a.cpr"});
    EXPECT_EQ(visitor.folders.size(), 2U);
}

TEST_F(FolderWalkTest, AFolderThatCannotBeOpenedIsToldUnlessItIsTheStart) {
    EXPECT_TRUE(Walk("gone"));
    EXPECT_TRUE(visitor.unopened.empty());
    folder.Write("songs/a.cpr", "");
    folder.MakeFolder("songs/b");
    folder.Write("songs/c/c.cpr", "");
    visitor.onFile = [&] { std::filesystem::remove(folder.Path("songs/b")); };
    EXPECT_EQ(Visited(), (Paths{"songs/a.cpr", "songs/c/c.cpr"}));
    ASSERT_EQ(visitor.unopened.size(), 1U);
    EXPECT_EQ(visitor.unopened[0].first, folder.Path("songs/b"));
    EXPECT_EQ(visitor.unopened[0].second, std::errc::no_such_file_or_directory);
}

TEST_F(LinkWalkTest, ALinkWithAnEarlierNameDoesNotTakeFilesFromTheirRealPath) {
    folder.Write("songs/b/one.cpr", "");
    Link("b", "songs/aaa");
    EXPECT_EQ(Visited(), Paths{"songs/b/one.cpr"});
    EXPECT_EQ(Shortened(visitor.folders), (Paths{"songs", "songs/b"})) << "not even entered";
}

TEST_F(LinkWalkTest, AStartThatIsALinkIsWalkedUnderItsOwnName) {
    folder.Write("real/sub/one.cpr", "");
    Link("../real", "songs/start");
    Link("sub", "real/aaa");
    EXPECT_TRUE(Walk("songs/start"));
    EXPECT_EQ(Files(), Paths{"songs/start/sub/one.cpr"});
}

TEST_F(LinkWalkTest, ALinkToTheStartIsNotFollowed) {
    folder.Write("songs/one.cpr", "");
    Link(".", "songs/self");
    Link("../songs", "songs/again");
    EXPECT_EQ(Visited(), Paths{"songs/one.cpr"});
}

TEST_F(LinkWalkTest, AFolderBesideTheStartWithALongerNameLiesOutside) {
    folder.Write("songs2/one.cpr", "");
    Link("../songs2", "songs/link");
    EXPECT_EQ(Visited(), Paths{"songs/link/one.cpr"});
}

TEST_F(LinkWalkTest, ALinkToTheFolderAboveVisitsTheRestOfItButNotTheStartAgain) {
    folder.Write("songs/sub/one.cpr", "");
    folder.Write("other/two.cpr", "");
    Link("..", "songs/aaa");
    EXPECT_EQ(Visited(), (Paths{"songs/aaa/other/two.cpr", "songs/sub/one.cpr"}));
}

TEST_F(LinkWalkTest, AnOutsideFolderIsEnteredOnceWhicheverLinkComesFirst) {
    folder.Write("outside/sub/one.cpr", "");
    folder.Write("outside/two.cpr", "");
    Link("../outside/sub", "songs/a");
    Link("../outside", "songs/b");
    Link("../outside", "songs/c");
    EXPECT_EQ(Visited(), (Paths{"songs/a/one.cpr", "songs/b/two.cpr"}));
}

TEST_F(LinkWalkTest, LinksInAnOutsideFolderFollowTheSameRule) {
    folder.Write("songs/one.cpr", "");
    folder.Write("songs/sub/two.cpr", "");
    folder.Write("outside/three.cpr", "");
    folder.Write("farther/four.cpr", "");
    Link("../outside", "songs/aaa");
    Link("../songs/sub", "outside/back");
    Link("../outside", "outside/self");
    Link("../farther", "outside/on");
    EXPECT_EQ(Visited(), (Paths{"songs/one.cpr", "songs/aaa/three.cpr", "songs/aaa/on/four.cpr",
                                "songs/sub/two.cpr"}));
}

TEST_F(LinkWalkTest, ALinkToAFileInsideIsSkipped) {
    folder.Write("songs/sub/one.cpr", "");
    Link("sub/one.cpr", "songs/aaa.cpr");
    EXPECT_EQ(Visited(), Paths{"songs/sub/one.cpr"});
}

TEST_F(LinkWalkTest, ALinkToAFileThatTheWalkDoesNotReachIsVisited) {
    folder.Write("songs/sub/one.cpr", "");
    Link("sub/one.cpr", "songs/link.cpr");
    EXPECT_EQ(Visited(false), Paths{"songs/link.cpr"});
}

TEST_F(LinkWalkTest, ALinkToAFileWithoutTheTypeIsVisitedOnce) {
    folder.Write("songs/contents.data", "");
    Link("contents.data", "songs/link.cpr");
    Link("contents.data", "songs/other.cpr");
    EXPECT_EQ(Visited(), Paths{"songs/link.cpr"});
}

TEST_F(LinkWalkTest, AnOutsideFileIsVisitedOnceWhateverLeadsToIt) {
    folder.Write("outside/one.cpr", "");
    Link("../outside/one.cpr", "songs/a.cpr");
    Link("../outside/one.cpr", "songs/b.cpr");
    Link("../outside", "songs/c");
    EXPECT_EQ(Visited(), Paths{"songs/a.cpr"});
}

TEST_F(LinkWalkTest, AFileInAnOutsideFolderIsNotVisitedAgainThroughALink) {
    folder.Write("outside/one.cpr", "");
    folder.MakeFolder("songs/b");
    Link("../outside", "songs/a");
    Link("../../outside/one.cpr", "songs/b/z.cpr");
    EXPECT_EQ(Visited(), Paths{"songs/a/one.cpr"});
}

TEST_F(LinkWalkTest, HardLinksAreFilesOfTheirOwn) {
    folder.Write("songs/one.cpr", "");
    std::filesystem::create_hard_link(folder.Path("songs/one.cpr"), folder.Path("songs/two.cpr"));
    EXPECT_EQ(Visited(), (Paths{"songs/one.cpr", "songs/two.cpr"}));
}

TEST_F(LinkWalkTest, WithoutSubfoldersNoFolderLinkIsFollowed) {
    folder.Write("songs/one.cpr", "");
    folder.Write("outside/two.cpr", "");
    Link("../outside", "songs/link");
    EXPECT_EQ(Visited(false), Paths{"songs/one.cpr"});
}

TEST_F(LinkWalkTest, AProjectThroughManyLinksIsFoundUnderItsRealPath) {
    folder.Write("songs/z/y/x/one.cpr", "");
    Link("z", "songs/a");
    Link("z/y", "songs/b");
    Link("a/y/x", "songs/c");
    Link("../..", "songs/z/y/up");
    Link("../../../songs", "songs/z/y/round");
    EXPECT_EQ(Visited(), Paths{"songs/z/y/x/one.cpr"});
}

}  // namespace
}  // namespace marlo
