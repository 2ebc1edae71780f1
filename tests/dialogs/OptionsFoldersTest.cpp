#include <cstddef>
#include <exception>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "core/RunTimeError.h"
#include "dialogs/frmOptions.h"
#include "tests/dialogs/DialogFakes.h"

namespace marlo {
namespace {

using Texts = std::vector<std::string>;

class OptionsFoldersTest : public test::OptionsTestBase {
  protected:
    OptionsFoldersTest() {
        WriteFolders({"/a", "/b", "/c"});
        options.Form_Load();
        view.events.clear();
    }

    void Add(const std::string& folder) {
        folders.answer = folder;
        options.cmdAdd_Click();
    }

    void Remove(std::size_t position) {
        options.SelectPath(position);
        options.cmdRemove_Click();
    }
};

TEST_F(OptionsFoldersTest, AFolderIsAskedForWithoutOneToStartAt) {
    Add("/d");
    ASSERT_EQ(folders.requests.size(), 1U);
    EXPECT_EQ(folders.requests.front().title, "Please select a folder:");
    EXPECT_EQ(folders.requests.front().initialFolder, "");
    EXPECT_EQ(folders.requests.front().flags, 0x45U) << "folders only, in the new style";
}

TEST_F(OptionsFoldersTest, AFolderIsAddedAtTheEndAndTheListIsShadedAgain) {
    Add("/aa");
    EXPECT_EQ(view.shown.folders, (Texts{"/a", "/b", "/c", "/aa"}));
    EXPECT_EQ(view.events, (Texts{"Show", "AutoSizeListViewColumns", test::kSetLedger}));
}

TEST_F(OptionsFoldersTest, ACancelAddsNothing) {
    options.cmdAdd_Click();
    EXPECT_EQ(test::ShownAs(options.State()).folders, (Texts{"/a", "/b", "/c"}));
    EXPECT_TRUE(view.events.empty());
}

TEST_F(OptionsFoldersTest, AFolderThatIsListedAlreadyIsToldAndNotLogged) {
    Add("/b");
    ExpectMessage("Path is already in the list");
    EXPECT_EQ(view.events, Texts{"Message: Path is already in the list"});
    EXPECT_EQ(test::ShownAs(options.State()).folders, (Texts{"/a", "/b", "/c"}));
    EXPECT_EQ(Log(), "");
    Add("/d");
    EXPECT_EQ(view.shown.folders, (Texts{"/a", "/b", "/c", "/d"})) << "the dialog goes on";
}

TEST_F(OptionsFoldersTest, FoldersAreToldApartExactly) {
    Add("/B");
    EXPECT_EQ(view.shown.folders, (Texts{"/a", "/b", "/c", "/B"}));
}

TEST_F(OptionsFoldersTest, APickerThatFailsAddsNothing) {
    folders.failure = std::make_exception_ptr(RunTimeError(ErrorNumber::OutOfMemory));
    Add("/d");
    EXPECT_TRUE(view.events.empty());
    EXPECT_EQ(Log(), LogLine("FolderBrowser:GetFolder", 7, "Out of memory"));
}

TEST_F(OptionsFoldersTest, AFailureOfAddingIsLoggedAndTold) {
    view.onAutoSize = Fail;
    Add("/d");
    ExpectMessage("An unexpected error occurred. Clear the list and try again.");
    EXPECT_EQ(Log(), LogLine("frmOptions:cmdAdd_Click", 70, "Permission denied"));
}

TEST_F(OptionsFoldersTest, RowColoursThatFailAreLoggedUnderTheirOwnNameAndNoFailureOfAdding) {
    view.onSetLedger = Fail;
    Add("/d");
    EXPECT_EQ(view.shown.folders, (Texts{"/a", "/b", "/c", "/d"}));
    EXPECT_EQ(view.events.back(), "RemoveLedger");
    EXPECT_TRUE(view.messages.empty());
    EXPECT_EQ(Log(), LogLine("SetListViewLedger", 70, "Permission denied"));
}

TEST_F(OptionsFoldersTest, TheSelectedFolderIsRemovedWithoutAQuestion) {
    Remove(2);
    EXPECT_EQ(view.shown.folders, (Texts{"/a", "/c"}));
    EXPECT_EQ(view.events, Texts{"Show"});
    EXPECT_EQ(Log(), "");
}

TEST_F(OptionsFoldersTest, TheNextFolderIsSelectedThenOrElseTheLast) {
    Remove(2);
    EXPECT_EQ(view.shown.selectedFolder, "/c");
    options.cmdRemove_Click();
    EXPECT_EQ(view.shown.folders, Texts{"/a"});
    EXPECT_EQ(view.shown.selectedFolder, "/a");
    options.cmdRemove_Click();
    EXPECT_EQ(view.shown.folders, Texts{});
    EXPECT_EQ(view.shown.selectedFolder, "(none)");
    EXPECT_EQ(Log(), "");
}

TEST_F(OptionsFoldersTest, RemovingFromAnEmptyListDoesNothing) {
    for (int i = 0; i < 3; ++i)
        Remove(1);
    view.events.clear();
    options.cmdRemove_Click();
    EXPECT_TRUE(view.events.empty());
    EXPECT_EQ(Log(), "");
}

TEST_F(OptionsFoldersTest, RemovingWithNoFolderSelectedIsLoggedAndTold) {
    options.cmdRemove_Click();
    ExpectMessage("An unexpected error occurred.");
    EXPECT_EQ(Log(), LogLine("frmOptions:cmdRemove_Click", 91, "Object variable not set"));
    EXPECT_EQ(test::ShownAs(options.State()).folders, (Texts{"/a", "/b", "/c"}));
}

TEST_F(OptionsFoldersTest, ARowThatDoesNotExistSelectsNone) {
    for (const std::size_t position : {0U, 4U}) {
        options.SelectPath(1);
        options.SelectPath(position);
        EXPECT_EQ(test::ShownAs(options.State()).selectedFolder, "(none)") << position;
    }
    EXPECT_EQ(Log(), "");
}

TEST_F(OptionsFoldersTest, AFolderThatWasRemovedMayBeAddedAgain) {
    Remove(1);
    Add("/a");
    EXPECT_EQ(view.shown.folders, (Texts{"/b", "/c", "/a"}));
    EXPECT_TRUE(view.messages.empty());
}

TEST_F(OptionsFoldersTest, AddingKeepsTheSelection) {
    options.SelectPath(2);
    Add("/d");
    EXPECT_EQ(view.shown.selectedFolder, "/b");
}

}  // namespace
}  // namespace marlo
