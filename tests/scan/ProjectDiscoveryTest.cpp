#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "core/RunTimeError.h"
#include "scan/ProjectDiscovery.h"
#include "tests/support/ApplicationTest.h"
#include "tests/support/System.h"

namespace marlo {
namespace {

using Paths = std::vector<std::string>;

class ProjectDiscoveryTest : public test::ApplicationTest {
  protected:
    ProjectDiscoveryTest() { folder.MakeFolder("songs"); }

    /// The projects found under "songs", without that folder's path, with slashes.
    Paths Discover(bool includeSubfolders = true) {
        return DiscoverIn(folder.Path("songs"), includeSubfolders);
    }

    Paths DiscoverIn(const std::string& start, bool includeSubfolders = true) {
        GetListOfProjects(application, window, lists, start, includeSubfolders, false, 0,
                          projectCount);
        Paths found;
        for (const std::string_view path : lists.ProjectFiles)
            found.emplace_back(path.substr(folder.Path("songs").size() + 1));
        for (std::string& path : found)
            std::replace(path.begin(), path.end(), '\\', '/');
        return found;
    }

    SearchLists lists;
    std::int32_t projectCount = 1;
};

TEST_F(ProjectDiscoveryTest, AFolderWithoutProjectsAddsNothing) {
    folder.Write("songs/readme.txt", "");
    EXPECT_EQ(Discover(), Paths{});
    EXPECT_EQ(projectCount, 1);
    EXPECT_TRUE(window.events.empty());
}

TEST_F(ProjectDiscoveryTest, AMissingFolderAddsNothingAndRaisesNoError) {
    EXPECT_EQ(DiscoverIn(folder.Path("gone")), Paths{});
    EXPECT_EQ(projectCount, 1);
    EXPECT_EQ(Log(), "");
}

TEST_F(ProjectDiscoveryTest, AFileInTheStartingFoldersPlaceAddsNothing) {
    EXPECT_EQ(DiscoverIn(folder.Write("songs/a.cpr", "")), Paths{});
}

TEST_F(ProjectDiscoveryTest, BothTypeDescriptionsCountExactly) {
    for (const char* name : {"a.one", "b.two", "c.three", "d.four"})
        folder.Write(std::string("songs/") + name, "");
    desktop.descriptions = {{".one", "CubaseSX Project"},
                            {".two", "CPR File"},
                            {".three", "cpr file"},
                            {".four", "CPR File "}};
    EXPECT_EQ(Discover(), (Paths{"a.one", "b.two"}));
}

TEST_F(ProjectDiscoveryTest, AnUpperCaseExtensionCounts) {
    folder.Write("songs/LOUD.CPR", "");
    EXPECT_EQ(Discover(), Paths{"LOUD.CPR"});
}

TEST_F(ProjectDiscoveryTest, WithoutSubfoldersTheirProjectsAreNotFound) {
    folder.Write("songs/a.cpr", "");
    folder.Write("songs/sub/b.cpr", "");
    EXPECT_EQ(Discover(false), Paths{"a.cpr"});
    EXPECT_EQ(projectCount, 2);
}

TEST_F(ProjectDiscoveryTest, AFoldersOwnFilesComeBeforeItsSubfoldersDepthFirst) {
    for (const char* name : {"z.cpr", "a/c.cpr", "a/b/d.cpr", "e/f.cpr"})
        folder.Write(std::string("songs/") + name, "");
    EXPECT_EQ(Discover(), (Paths{"z.cpr", "a/c.cpr", "a/b/d.cpr", "e/f.cpr"}));
    EXPECT_EQ(projectCount, 5);
}

TEST_F(ProjectDiscoveryTest, FilesAndFoldersAreSortedWithoutRegardToCase) {
    for (const char* name :
         {"b.cpr", "A.cpr", "C.cpr", "Y/1.cpr", "x/2.cpr", "\xC3\x89tude.cpr", "\xC3\xA9tage.cpr"})
        folder.Write(std::string("songs/") + name, "");
    EXPECT_EQ(Discover(), (Paths{"A.cpr", "b.cpr", "C.cpr", "\xC3\xA9tage.cpr", "\xC3\x89tude.cpr",
                                 "x/2.cpr", "Y/1.cpr"}));
}

TEST_F(ProjectDiscoveryTest, TheCounterGoesOnFromWhereItStood) {
    lists.ProjectFiles.Append(folder.Path("songs/earlier.cpr"));
    projectCount = 2;
    folder.Write("songs/a.cpr", "");
    EXPECT_EQ(Discover(), (Paths{"earlier.cpr", "a.cpr"}));
    EXPECT_EQ(projectCount, 3);
}

TEST_F(ProjectDiscoveryTest, EachProjectIsShownPaintedAndEventsRun) {
    const std::string path = folder.Write("songs/a.cpr", "");
    Discover();
    EXPECT_EQ(window.events, (Paths{"Text2: " + path, "Repaint", "Events"}));
}

TEST_F(ProjectDiscoveryTest, NamesWithOddBytesAreKept) {
    folder.Write("songs/" + test::OddName() + ".cpr", "");
    folder.Write("songs/\xE6\x9B\xB2/\xF0\x9F\x8E\xB9.cpr", "");
    EXPECT_EQ(Discover(), (Paths{test::OddName() + ".cpr", "\xE6\x9B\xB2/\xF0\x9F\x8E\xB9.cpr"}));
}

TEST_F(ProjectDiscoveryTest, AProjectIsListedAndShownBeforeTheNextFileIsAskedAbout) {
    folder.Write("songs/a.cpr", "");
    folder.Write("songs/b.cpr", "");
    desktop.unreadable = {"b.cpr"};
    EXPECT_THROW(Discover(), RunTimeError);
    EXPECT_EQ(lists.ProjectFiles.UpperBound(), 1U);
    EXPECT_EQ(projectCount, 2);
    EXPECT_EQ(window.text2, folder.Path("songs/a.cpr"));
    EXPECT_EQ(window.Count("Events"), 1U);
}

TEST_F(ProjectDiscoveryTest, ALinkDoesNotTakeProjectsFromTheirRealPath) {
    folder.Write("songs/b/one.cpr", "");
    if (!test::CanTellLinks() || !test::MakeLink("b", folder.Path("songs/aaa")))
        GTEST_SKIP() << test::kNoLinks;
    EXPECT_EQ(Discover(), Paths{"b/one.cpr"});
}

TEST_F(ProjectDiscoveryTest, ALinkLoopEndsAndNoFolderIsVisitedTwice) {
    folder.Write("songs/a/one.cpr", "");
    if (!test::MakeLink("..", folder.Path("songs/a/loop")))
        GTEST_SKIP() << test::kNoLinks;
    if (!test::MakeLink("a", folder.Path("songs/again")))
        GTEST_SKIP() << test::kNoLinks;
    EXPECT_EQ(Discover(), Paths{"a/one.cpr"});
}

TEST_F(ProjectDiscoveryTest, ALinkToAFolderElsewhereIsFollowed) {
    folder.Write("elsewhere/one.cpr", "");
    if (!test::MakeLink("../elsewhere", folder.Path("songs/link")))
        GTEST_SKIP() << test::kNoLinks;
    EXPECT_EQ(Discover(), Paths{"link/one.cpr"});
}

TEST_F(ProjectDiscoveryTest, ASubfolderThatVanishesDuringTheWalkIsPassedOn) {
    folder.Write("songs/a.cpr", "");
    folder.MakeFolder("songs/sub");
    window.onEvents = [&] { std::filesystem::remove(folder.Path("songs/sub")); };
    EXPECT_THROW(Discover(), RunTimeError);
    EXPECT_EQ(Log(), "");
}

TEST_F(ProjectDiscoveryTest, ASubfolderThatMayNotBeOpenedIsPassedOn) {
    if (!test::CanBeOrdinaryUser())
        GTEST_SKIP() << test::kNoOrdinaryUser;
    std::filesystem::permissions(folder.Path(), std::filesystem::perms{0755});
    std::filesystem::permissions(folder.MakeFolder("songs/closed"), std::filesystem::perms::none);
    const test::OrdinaryUser user;
    try {
        Discover();
        FAIL() << "the folder was opened";
    } catch (const RunTimeError& failure) {
        EXPECT_EQ(failure.Number(), ErrorNumber::PermissionDenied);
    }
}

TEST_F(ProjectDiscoveryTest, AStartingFolderThatMayNotBeOpenedAddsNothing) {
    if (!test::CanBeOrdinaryUser())
        GTEST_SKIP() << test::kNoOrdinaryUser;
    std::filesystem::permissions(folder.Path(), std::filesystem::perms{0755});
    std::filesystem::permissions(folder.Path("songs"), std::filesystem::perms::none);
    const test::OrdinaryUser user;
    EXPECT_EQ(Discover(), Paths{});
}

TEST_F(ProjectDiscoveryTest, AFileTypeThatCannotBeReadIsPassedOn) {
    folder.Write("songs/a.cpr", "");
    desktop.unreadable = {"a.cpr"};
    EXPECT_THROW(Discover(), RunTimeError);
}

TEST_F(ProjectDiscoveryTest, MoreThan500ProjectsAreFound) {
    for (int i = 0; i < 1100; ++i)
        folder.Write("songs/" + std::to_string(10000 + i) + ".cpr", "");
    Discover();
    EXPECT_EQ(lists.ProjectFiles.UpperBound(), 1100U);
    EXPECT_EQ(lists.ProjectFiles[1100], folder.Path("songs/11099.cpr"));
    EXPECT_EQ(projectCount, 1101);
}

}  // namespace
}  // namespace marlo
