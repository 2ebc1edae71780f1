#include <exception>

#include <gtest/gtest.h>

#include "core/RunTimeError.h"
#include "dialogs/FileBrowser.h"
#include "tests/dialogs/DialogFakes.h"

namespace marlo {
namespace {

using namespace std::string_literals;

class FileBrowserTest : public test::ApplicationTest {
  protected:
    FileBrowserTest() { chooser.Choose("/bin/sheet"); }

    bool Show() { return ShowOpenDialog(application, chooser, request); }

    const OpenFileName& Record() const { return chooser.records.back(); }

    std::string FilterFor(const std::string& filter) {
        request.filter = filter;
        Show();
        return Record().filter;
    }

    void ExpectRequestAsItWas() const {
        EXPECT_EQ(request.fileName, asked.fileName);
        EXPECT_EQ(request.fileTitle, asked.fileTitle);
        EXPECT_EQ(request.filter, asked.filter);
        EXPECT_EQ(request.filterIndex, asked.filterIndex);
        EXPECT_EQ(request.flags, asked.flags);
    }

    test::FakeFileChooser chooser;
    FileRequest asked{.fileName = "/bin/old",
                      .fileTitle = "old",
                      .filter = "Program files (*.exe)|*.exe",
                      .filterIndex = 3,
                      .initialFolder = "/bin",
                      .dialogTitle = "Which one?",
                      .flags = 0x77};
    FileRequest request = asked;
};

TEST_F(FileBrowserTest, TheChosenFileAndWhatCameWithItAreStored) {
    chooser.answer = [](OpenFileName& record) {
        record.file = "/bin/sheet\0rubbish"s;
        record.fileTitle = "sheet\0rubbish"s;
        record.flags = 0x1406;
        record.filterIndex = 2;
    };
    EXPECT_TRUE(Show());
    EXPECT_EQ(request.fileName, "/bin/sheet");
    EXPECT_EQ(request.fileTitle, "sheet");
    EXPECT_EQ(request.flags, 0x1406U);
    EXPECT_EQ(request.filterIndex, 2);
    EXPECT_EQ(request.filter, asked.filter);
    EXPECT_EQ(Log(), "");
}

TEST_F(FileBrowserTest, TheRecordHoldsWhatWasAskedFor) {
    Show();
    ASSERT_EQ(chooser.records.size(), 1U);
    EXPECT_EQ(Record().filterIndex, 3);
    EXPECT_EQ(Record().initialFolder, "/bin");
    EXPECT_EQ(Record().title, "Which one?");
}

TEST_F(FileBrowserTest, OnlyFilesThatExistMayBeChosen) {
    Show();
    EXPECT_EQ(Record().flags, 0x1004U);
}

TEST_F(FileBrowserTest, NameAndTitleArePaddedToTheirBuffers) {
    Show();
    EXPECT_EQ(Record().file, "/bin/old" + std::string(252, '\0'));
    EXPECT_EQ(Record().fileTitle, "old" + std::string(257, '\0'));
}

TEST_F(FileBrowserTest, NameAndTitleMayFillTheirBuffers) {
    const std::string longest(260, 'n');
    request.fileName = longest;
    request.fileTitle = longest;
    chooser.answer = [](OpenFileName& /*record*/) {};
    ASSERT_TRUE(Show());
    EXPECT_EQ(Record().file, longest);
    EXPECT_EQ(Record().fileTitle, longest);
    EXPECT_EQ(request.fileName, longest);
    EXPECT_EQ(request.fileTitle, longest);
}

TEST_F(FileBrowserTest, ANameLongerThanItsBufferFailsWithoutShowingAnything) {
    asked.fileName = std::string(261, 'n');
    request = asked;
    EXPECT_FALSE(Show());
    EXPECT_TRUE(chooser.records.empty());
    ExpectRequestAsItWas();
    EXPECT_EQ(Log(), LogLine("FileBrowser:VBGetOpenFileName", 5, "Invalid procedure call"));
}

TEST_F(FileBrowserTest, ATitleLongerThanItsBufferFailsWithoutShowingAnything) {
    asked.fileTitle = std::string(261, 't');
    request = asked;
    EXPECT_FALSE(Show());
    EXPECT_TRUE(chooser.records.empty());
    ExpectRequestAsItWas();
    EXPECT_EQ(Log(), LogLine("FileBrowser:VBGetOpenFileName", 5, "Invalid procedure call"));
}

TEST_F(FileBrowserTest, ACancelClearsNameTitleAndFilter) {
    chooser.Cancel();
    EXPECT_FALSE(Show());
    EXPECT_EQ(request.fileName, "");
    EXPECT_EQ(request.fileTitle, "");
    EXPECT_EQ(request.filter, "");
    EXPECT_EQ(request.filterIndex, -1);
    EXPECT_EQ(request.initialFolder, "/bin");
    EXPECT_EQ(request.dialogTitle, "Which one?");
    EXPECT_EQ(Log(), "");
}

TEST_F(FileBrowserTest, AFilterIsConvertedForThePlatform) {
    EXPECT_EQ(FilterFor("Program files (*.exe)|*.exe"), "Program files (*.exe)\0*.exe\0\0"s);
    EXPECT_EQ(FilterFor("A|*.a|B|*.b"), "A\0*.a\0B\0*.b\0\0"s);
}

TEST_F(FileBrowserTest, AColonInAFilterSeparatesToo) {
    EXPECT_EQ(FilterFor("Files: all|*.*"), "Files\0 all\0*.*\0\0"s);
}

TEST_F(FileBrowserTest, WithoutAFilterAllFilesAreShown) {
    EXPECT_EQ(FilterFor(""), "All Files\0*.*\0\0"s);
    EXPECT_EQ(request.filter, "");
}

TEST_F(FileBrowserTest, AFailureIsLoggedAndNothingIsChosen) {
    chooser.failure = std::make_exception_ptr(RunTimeError(ErrorNumber::PermissionDenied));
    EXPECT_FALSE(Show());
    ExpectRequestAsItWas();
    EXPECT_EQ(Log(), LogLine("FileBrowser:VBGetOpenFileName", 70, "Permission denied"));
}

TEST_F(FileBrowserTest, ATextOfAFilterIsLookedUpByItsNumber) {
    const std::string filter = "Program files\0*.exe\0All\0*.*\0\0"s;
    EXPECT_EQ(FilterLookup(application, filter, 1), "Program files");
    EXPECT_EQ(FilterLookup(application, filter, 2), "*.exe");
    EXPECT_EQ(FilterLookup(application, filter, 4), "*.*");
}

TEST_F(FileBrowserTest, AFilterHasNoTextBehindItsEndOrInFrontOfItsFirst) {
    const std::string filter = "A\0*.a\0\0B\0*.b\0\0"s;
    for (const std::int32_t position : {-1, 0, 3, 4, 5, 1'000'000'000})
        EXPECT_EQ(FilterLookup(application, filter, position), "") << position;
    EXPECT_EQ(FilterLookup(application, "", 1), "");
}

TEST_F(FileBrowserTest, AFilterWithoutAnEndIsReadToItsLastText) {
    EXPECT_EQ(FilterLookup(application, "A\0*.a"s, 2), "*.a");
    EXPECT_EQ(FilterLookup(application, "A\0*.a"s, 3), "");
}

}  // namespace
}  // namespace marlo
