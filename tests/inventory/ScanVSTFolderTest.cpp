#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "core/RunTimeError.h"
#include "inventory/GetInstalledPlugins.h"
#include "tests/support/ApplicationTest.h"
#include "tests/support/System.h"

namespace marlo {
namespace {

using Texts = std::vector<std::string>;

class ScanVSTFolderTest : public test::ApplicationTest {
  protected:
    ScanVSTFolderTest() { folder.MakeFolder("vst"); }

    std::string Vst(const std::string& name = "") const {
        return folder.Path(name.empty() ? "vst" : "vst/" + name);
    }

    void Scan(const std::string& path, bool includeSubfolders = true) {
        std::error_code error;
        std::filesystem::remove(folder.Path("list.csv"));
        LineWriter output(platform::File::OpenForAppending(folder.Path("list.csv"), error));
        ScanVSTFolder(application, window, path, includeSubfolders, output, cancelled);
    }

    /// What a scan of "vst" writes.
    std::string Lines(bool includeSubfolders = true) {
        Scan(Vst(), includeSubfolders);
        return folder.Read("list.csv");
    }

    std::string Line(const std::string& name, const std::string& file) const {
        return "\"VST\",\"" + name + "\",\"" + Vst(file) + "\"\r\n";
    }

    bool cancelled = false;
};

TEST_F(ScanVSTFolderTest, SubfoldersAreIncludedWhenTheyAreWanted) {
    folder.Write("vst/Reverb.dll", "");
    folder.Write("vst/sub/Delay.dll", "");
    EXPECT_EQ(Lines(true), Line("Reverb", "Reverb.dll") + Line("Delay", "sub/Delay.dll"));
    EXPECT_EQ(Lines(false), Line("Reverb", "Reverb.dll"));
}

TEST_F(ScanVSTFolderTest, APathWithANulIsNotTakenForTheFolderInFrontOfIt) {
    folder.Write("vst/Reverb.dll", "");
    Scan(Vst() + std::string("\0x", 2));
    EXPECT_EQ(folder.Read("list.csv"), "");
}

TEST_F(ScanVSTFolderTest, FilesComeBeforeSubfoldersAndNamesInOrderWithoutRegardToCase) {
    for (const char* name :
         {"b.dll", "A.dll", "C.dll", "a sub/z.dll", "B sub/y.dll", "a sub/1/x.dll"})
        folder.Write(std::string("vst/") + name, "");
    EXPECT_EQ(Lines(), Line("A", "A.dll") + Line("b", "b.dll") + Line("C", "C.dll") +
                           Line("z", "a sub/z.dll") + Line("x", "a sub/1/x.dll") +
                           Line("y", "B sub/y.dll"));
}

TEST_F(ScanVSTFolderTest, TheNameIsTheFilesWithoutItsLastExtension) {
    folder.Write("vst/a.b.dll", "");
    EXPECT_EQ(Lines(), Line("a.b", "a.b.dll"));
}

TEST_F(ScanVSTFolderTest, ANameIsInTheAnsiPageAndThePathOpensTheFile) {
    const std::string path = folder.Write("vst/Réverb.dll", "a library");
    EXPECT_EQ(Lines(), "\"VST\",\"R\xE9verb\",\"" + path + "\"\r\n");
    EXPECT_EQ(folder.Read("vst/Réverb.dll"), "a library");
}

TEST_F(ScanVSTFolderTest, ANameThatIsNotInTheAnsiPageOrHasACommaOrAQuoteStaysAsItIs) {
    folder.Write("vst/曲 é.dll", "");
    folder.Write("vst/" + test::OddName() + ".dll", "");
    EXPECT_EQ(Lines(), Line(test::OddName(), test::OddName() + ".dll") + Line("曲 é", "曲 é.dll"));
}

TEST_F(ScanVSTFolderTest, ExcludedLibrariesAreNotWritten) {
    for (const char* name : {"msvcrt.dll", "HALionReWire.dll", ".dll", "sub/MSVCRT.dll"})
        folder.Write(std::string("vst/") + name, "");
    EXPECT_EQ(Lines(), Line("MSVCRT", "sub/MSVCRT.dll")) << "the case of an excluded name counts";
}

TEST_F(ScanVSTFolderTest, TheSameNameInTwoFoldersHasTwoLines) {
    folder.Write("vst/a/Reverb.dll", "");
    folder.Write("vst/b/Reverb.dll", "");
    EXPECT_EQ(Lines(), Line("Reverb", "a/Reverb.dll") + Line("Reverb", "b/Reverb.dll"));
}

TEST_F(ScanVSTFolderTest, OnlyTheExactTypeIsALibrary) {
    desktop.descriptions = {{".dll", "Application extension"}, {".vst", "Application Extension"}};
    folder.Write("vst/a.dll", "");
    folder.Write("vst/b.vst", "");
    folder.Write("vst/c.txt", "");
    EXPECT_EQ(Lines(), Line("b", "b.vst"));
}

TEST_F(ScanVSTFolderTest, AMissingFolderGivesNoLineAndNoMessage) {
    Scan(folder.Path("gone"));
    Scan(folder.Write("file", ""));
    EXPECT_EQ(folder.Read("list.csv"), "");
    EXPECT_EQ(window.messages.size(), 0U);
    EXPECT_EQ(Log(), "");
    EXPECT_FALSE(cancelled);
}

TEST_F(ScanVSTFolderTest, AFolderThatMayNotBeOpenedIsPassedOver) {
    if (!test::CanBeOrdinaryUser())
        GTEST_SKIP() << test::kNoOrdinaryUser;
    folder.Write("vst/a/Delay.dll", "");
    folder.Write("vst/b/Reverb.dll", "");
    using std::filesystem::perms;
    std::filesystem::permissions(Vst("a"), perms::none);
    std::filesystem::permissions(folder.Path(), perms{0777});  // for the list
    {
        const test::OrdinaryUser user;
        EXPECT_EQ(Lines(), Line("Reverb", "b/Reverb.dll"));
    }
    std::filesystem::permissions(Vst("a"), perms{0755});
}

TEST_F(ScanVSTFolderTest, AnUnreadableFolderAtAnyDepthIsPassedOverWithWhatIsInIt) {
    if (!test::CanBeOrdinaryUser())
        GTEST_SKIP() << test::kNoOrdinaryUser;
    using std::filesystem::perms;
    std::filesystem::permissions(folder.Path(), perms{0777});  // for the list
    const Texts folders = {"", "1/", "1/2/", "1/2/3/"};
    for (const std::string& path : folders)
        folder.Write("vst/" + path + "Delay.dll", "");
    folder.Write("vst/z/Echo.dll", "");
    for (std::size_t depth = 0; depth < folders.size(); ++depth) {
        std::string expected;
        for (std::size_t i = 0; i < depth; ++i)
            expected += Line("Delay", folders[i] + "Delay.dll");
        if (depth > 0)
            expected += Line("Echo", "z/Echo.dll");
        std::filesystem::permissions(Vst(folders[depth]), perms::none);
        {
            const test::OrdinaryUser user;
            EXPECT_EQ(Lines(), expected) << depth;
        }
        std::filesystem::permissions(Vst(folders[depth]), perms{0755});
    }
    EXPECT_EQ(Log(), "");
    EXPECT_TRUE(window.messages.empty());
}

TEST_F(ScanVSTFolderTest, AFolderThatVanishesDuringTheWalkIsPassedOver) {
    for (const char* name : {"a/Delay.dll", "b/Echo.dll", "c/Reverb.dll"})
        folder.Write(std::string("vst/") + name, "");
    window.onEvents = [&] {
        if (window.text2 == Vst("a"))
            std::filesystem::remove_all(folder.Path("vst/b"));
    };
    EXPECT_EQ(Lines(), Line("Delay", "a/Delay.dll") + Line("Reverb", "c/Reverb.dll"));
    EXPECT_EQ(Log(), "");
    EXPECT_FALSE(cancelled);
}

TEST_F(ScanVSTFolderTest, EachFolderIsShownBeforeItIsOpened) {
    folder.Write("vst/sub/Delay.dll", "");
    Scan(Vst());
    EXPECT_EQ(window.events, (Texts{"Text2: " + Vst(), "Events", "Events", "Text2: " + Vst("sub"),
                                    "Events", "Events"}));
}

TEST_F(ScanVSTFolderTest, AfterCancelNoFurtherFolderIsOpened) {
    folder.Write("vst/Reverb.dll", "");
    folder.Write("vst/a/Delay.dll", "");
    folder.Write("vst/b/Echo.dll", "");
    window.onEvents = [&, count = 0]() mutable {
        if (++count == 3)
            window.cancelTag = kCancelTag;
    };
    EXPECT_EQ(Lines(), Line("Reverb", "Reverb.dll"));
    EXPECT_TRUE(cancelled);
    EXPECT_EQ(window.text2, Vst("a")) << "b is not even shown";
}

TEST_F(ScanVSTFolderTest, OnlyTheExactMarkCancels) {
    window.cancelTag = "cancel";
    folder.Write("vst/Reverb.dll", "");
    EXPECT_EQ(Lines(), Line("Reverb", "Reverb.dll"));
    EXPECT_FALSE(cancelled);
}

TEST_F(ScanVSTFolderTest, ACancelOfBeforeIsNotTakenBack) {
    cancelled = true;
    Scan(Vst());
    EXPECT_TRUE(cancelled);
}

TEST_F(ScanVSTFolderTest, ALibraryIsWrittenBeforeTheNextFileIsAskedAbout) {
    folder.Write("vst/Delay.dll", "");
    folder.Write("vst/Echo.dll", "");
    desktop.unreadable = {"Echo.dll"};
    EXPECT_THROW(Scan(Vst()), RunTimeError);
    EXPECT_EQ(folder.Read("list.csv"), Line("Delay", "Delay.dll"));
    EXPECT_EQ(window.events, (Texts{"Text2: " + Vst(), "Events", "Events"}));
}

TEST_F(ScanVSTFolderTest, LocationsAreFullPathsWhateverTheFolderLooksLike) {
    folder.Write("vst/sub/Delay.dll", "");
    folder.MakeFolder("vst/other");
    for (const std::string& path :
         {Vst() + "/", Vst() + "//.", Vst("other/.."), Vst("sub/../other/../")}) {
        Scan(path);
        EXPECT_EQ(folder.Read("list.csv"), Line("Delay", "sub/Delay.dll")) << path;
        EXPECT_EQ(window.events.front(), "Text2: " + path) << "as the setting has it";
        EXPECT_EQ(window.text2, Vst("sub"));
        window.events.clear();
    }
}

TEST_F(ScanVSTFolderTest, ARelativeFolderIsTakenFromTheWorkingFolderOn) {
    folder.Write("vst/Delay.dll", "");
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(test::PathOf(folder.Path()));
    Scan("vst");
    std::filesystem::current_path(before);
    EXPECT_EQ(folder.Read("list.csv"), Line("Delay", "Delay.dll"));
}

TEST_F(ScanVSTFolderTest, ALinkInTheLocationStays) {
    folder.Write("real/sub/Delay.dll", "");
    folder.Write("real/beside/Echo.dll", "");
    if (!test::CanTellLinks() || !test::MakeLink("../real", Vst("link")))
        GTEST_SKIP() << test::kNoLinks;
    Scan(Vst("link/beside/../sub"));
    EXPECT_EQ(folder.Read("list.csv"), Line("Delay", "link/sub/Delay.dll"));
}

TEST_F(ScanVSTFolderTest, ALinkDoesNotTakeLibrariesFromTheirRealPath) {
    folder.Write("vst/b/Delay.dll", "");
    if (!test::CanTellLinks() || !test::MakeLink("b", Vst("aaa")))
        GTEST_SKIP() << test::kNoLinks;
    EXPECT_EQ(Lines(), Line("Delay", "b/Delay.dll"));
    EXPECT_EQ(window.Count("Text2: " + Vst("aaa")), 0U);
}

TEST_F(ScanVSTFolderTest, AFolderLinkDoesNotMakeTheWalkEndlessOrAFolderListedTwice) {
    folder.Write("vst/a/Delay.dll", "");
    if (!test::MakeLink("..", Vst("a/up")))
        GTEST_SKIP() << test::kNoLinks;
    if (!test::MakeLink("a", Vst("link")))
        GTEST_SKIP() << test::kNoLinks;
    EXPECT_EQ(Lines(), Line("Delay", "a/Delay.dll"));
}

TEST_F(ScanVSTFolderTest, ALinkedFolderIsScanned) {
    folder.Write("elsewhere/Delay.dll", "");
    if (!test::MakeLink("../elsewhere", Vst("link")))
        GTEST_SKIP() << test::kNoLinks;
    EXPECT_EQ(Lines(), Line("Delay", "link/Delay.dll"));
}

TEST_F(ScanVSTFolderTest, AFileThatCannotBeAskedAboutIsAFailure) {
    desktop.unreadable = {"Delay.dll"};
    folder.Write("vst/Delay.dll", "");
    EXPECT_THROW(Scan(Vst()), RunTimeError);
}

TEST_F(ScanVSTFolderTest, ALibraryWithoutAnExtensionIsAFailure) {
    desktop.descriptions = {{"", "Application Extension"}};
    folder.Write("vst/nodot", "");
    EXPECT_THROW(Scan(Vst()), RunTimeError);
}

}  // namespace
}  // namespace marlo
