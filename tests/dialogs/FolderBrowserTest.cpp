#include <exception>

#include <gtest/gtest.h>

#include "core/RunTimeError.h"
#include "dialogs/FolderBrowser.h"
#include "tests/dialogs/DialogFakes.h"

namespace marlo {
namespace {

/// A picker on no screen, which writes down what it is told.
class FakeOpenFolderPicker final : public platform::OpenFolderPicker {
  public:
    void SetSelection(const std::string& folder) override { selection = folder; }
    void SetStatusText(const std::string& text) override { statusText = text; }
    std::string SelectedPath() const override {
        if (selectedPath.empty())
            throw RunTimeError(ErrorNumber::OutOfMemory);
        return selectedPath;
    }

    std::string selection;
    std::string statusText;
    /// Empty for a picker that fails.
    std::string selectedPath;
};

class FolderBrowserTest : public test::ApplicationTest {
  protected:
    std::string Get(bool includeFiles = false, bool newDialogStyle = false) {
        return GetFolder(application, chooser, "/songs", "Which folder?", includeFiles,
                         newDialogStyle);
    }

    std::uint32_t FlagsOf(bool includeFiles, bool newDialogStyle) {
        Get(includeFiles, newDialogStyle);
        return chooser.requests.back().flags;
    }

    test::FakeFolderChooser chooser;
};

TEST_F(FolderBrowserTest, TheChosenFolderIsGiven) {
    chooser.answer = "/plugins";
    EXPECT_EQ(Get(), "/plugins");
    ASSERT_EQ(chooser.requests.size(), 1U);
    EXPECT_EQ(chooser.requests.front().title, "Which folder?");
    EXPECT_EQ(chooser.requests.front().initialFolder, "/songs");
    EXPECT_EQ(Log(), "");
}

TEST_F(FolderBrowserTest, TheFlagsTellWhatIsShown) {
    EXPECT_EQ(FlagsOf(false, false), 5U);
    EXPECT_EQ(FlagsOf(true, false), 0x4005U);
    EXPECT_EQ(FlagsOf(false, true), 0x45U);
    EXPECT_EQ(FlagsOf(true, true), 0x4045U);
}

TEST_F(FolderBrowserTest, TheInitialFolderIsSelectedWhenThePickerIsThere) {
    FakeOpenFolderPicker picker;
    chooser.onShow = [&](const FolderRequest& request) {
        ASSERT_TRUE(request.callback);
        request.callback(platform::BrowseMessage::Initialized, picker);
    };
    Get();
    EXPECT_EQ(picker.selection, "/songs");
    EXPECT_EQ(picker.statusText, "");
}

TEST_F(FolderBrowserTest, ThePathOfWhatIsSelectedIsShown) {
    FakeOpenFolderPicker picker;
    picker.selectedPath = "/songs/2006";
    chooser.onShow = [&](const FolderRequest& request) {
        ASSERT_TRUE(request.callback);
        request.callback(platform::BrowseMessage::SelectionChanged, picker);
    };
    Get();
    EXPECT_EQ(picker.statusText, "/songs/2006");
    EXPECT_EQ(picker.selection, "");
}

TEST_F(FolderBrowserTest, AFailureWhileThePickerIsThereIsLoggedAndItGoesOn) {
    FakeOpenFolderPicker picker;
    chooser.onShow = [&](const FolderRequest& request) {
        ASSERT_TRUE(request.callback);
        request.callback(platform::BrowseMessage::SelectionChanged, picker);
    };
    chooser.answer = "/plugins";
    EXPECT_EQ(Get(), "/plugins");
    EXPECT_EQ(Log(), LogLine("FolderBrowser:BrowseCallbackProc", 7, "Out of memory"));
}

TEST_F(FolderBrowserTest, WithoutAnInitialFolderNothingIsShownOfTheSelection) {
    GetFolder(application, chooser, "", "Which folder?", false, false);
    ASSERT_EQ(chooser.requests.size(), 1U);
    EXPECT_FALSE(chooser.requests.front().callback);
}

TEST_F(FolderBrowserTest, ACancelGivesNothing) {
    EXPECT_EQ(Get(), "");
    EXPECT_EQ(chooser.requests.size(), 1U);
    EXPECT_EQ(Log(), "");
}

TEST_F(FolderBrowserTest, ThePathEndsAtItsFirstNul) {
    chooser.answer = std::string("/plugins\0rubbish\0", 17);
    EXPECT_EQ(Get(), "/plugins");
    chooser.answer = std::string("\0rubbish", 8);
    EXPECT_EQ(Get(), "");
}

TEST_F(FolderBrowserTest, APathThatIsLongerThanThePlatformsBufferIsGivenWhole) {
    const std::string path = "/" + std::string(2000, 'p');
    chooser.answer = path;
    EXPECT_EQ(Get(), path);
}

TEST_F(FolderBrowserTest, AFailureIsLoggedAndGivesNothing) {
    chooser.answer = "/plugins";
    chooser.failure = std::make_exception_ptr(RunTimeError(ErrorNumber::OutOfMemory));
    EXPECT_EQ(Get(), "");
    EXPECT_EQ(Log(), LogLine("FolderBrowser:GetFolder", 7, "Out of memory"));
}

}  // namespace
}  // namespace marlo
