#include <filesystem>
#include <objbase.h>
#include <vector>

#include <gtest/gtest.h>

#include "platform/Pickers.h"
#include "tests/platform/windows/DialogAnswer.h"
#include "tests/support/TempFolder.h"
#include "tests/support/windows/FolderTimes.h"

namespace marlo::platform {
namespace {

class PickersTest : public testing::Test {
  protected:
    PickersTest() { CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED); }
    ~PickersTest() override { CoUninitialize(); }

    static std::string Cut(const std::string& text) { return text.substr(0, text.find('\0')); }

    test::TempFolder folder;
};

TEST_F(PickersTest, TheFolderThatTheCallbackSelectsIsChosenAndItsPathShown) {
    const std::string songs = folder.MakeFolder("Songs \xC3\xA9");
    std::vector<std::string> selected;
    std::size_t started = 0;
    test::SettleTimes(songs);
    FolderRequest request{.title = "Which folder?",
                          .flags = FolderRequest::kOnlyFolders | FolderRequest::kStatusText};
    request.callback = [&](BrowseMessage message, OpenFolderPicker& picker) {
        if (message == BrowseMessage::Initialized) {
            ++started;
            picker.SetSelection(songs);
        } else {
            selected.push_back(picker.SelectedPath());
            picker.SetStatusText("It is " + selected.back());
        }
    };
    const test::DialogAnswer answer(
        [&](HWND dialog) {
            EXPECT_TRUE(test::Shows(dialog, "Which folder?"));
            EXPECT_TRUE(test::Shows(dialog, "It is " + songs));
            test::Press(dialog, IDOK);
        },
        [&](HWND dialog) { return test::Shows(dialog, "It is " + songs); });
    const auto chosen = ChooseFolder(nullptr, request);
    ASSERT_TRUE(chosen);
    EXPECT_EQ(chosen->size(), 512U);
    EXPECT_EQ(Cut(*chosen), songs);
    EXPECT_EQ(started, 1U);
    ASSERT_FALSE(selected.empty());
    EXPECT_EQ(selected.back(), songs);
}

TEST_F(PickersTest, APathOfManyBytesIsChosenWhole) {
    std::string name;
    for (int i = 0; i < 40; ++i)
        name += "\xC3\xA9";
    const std::string songs = folder.MakeFolder(name + "/" + name + "/" + name);
    test::SettleTimes(songs);
    FolderRequest request{.title = "Which folder?", .flags = FolderRequest::kOnlyFolders};
    std::string selected;
    request.callback = [&](BrowseMessage message, OpenFolderPicker& picker) {
        if (message == BrowseMessage::Initialized)
            picker.SetSelection(songs);
        else
            selected = picker.SelectedPath();
    };
    const test::DialogAnswer answer([](HWND dialog) { test::Press(dialog, IDOK); },
                                    [&](HWND) { return selected == songs; });
    const auto chosen = ChooseFolder(nullptr, request);
    ASSERT_TRUE(chosen);
    EXPECT_GT(songs.size(), std::size_t{MAX_PATH});
    EXPECT_EQ(Cut(*chosen), songs);
}

TEST_F(PickersTest, AFolderPickerWithoutACallbackMayBeCancelled) {
    const test::DialogAnswer answer([](HWND dialog) { test::Press(dialog, IDCANCEL); });
    EXPECT_FALSE(ChooseFolder(nullptr, {.title = "Which folder?", .flags = 0x45}));
    EXPECT_TRUE(answer.WasGiven());
}

class FilePickerTest : public PickersTest {
  protected:
    OpenFileName RecordFor(const std::string& file) {
        OpenFileName record;
        record.filter = std::string("Programs\0*.exe\0All\0*.*\0\0", 24);
        record.filterIndex = 2;
        record.file = file;
        record.file.resize(OpenFileName::kBufferSize);
        record.fileTitle.resize(OpenFileName::kBufferSize);
        record.title = "Which program?";
        record.flags = OpenFileName::kFileMustExist | OpenFileName::kHideReadOnly;
        return record;
    }
};

TEST_F(FilePickerTest, TheProposedFileIsChosen) {
    const std::string program = folder.Write("Programs/sheets.exe", "MZ");
    OpenFileName record = RecordFor(program);
    std::string title;
    const test::DialogAnswer answer([&](HWND dialog) {
        title = test::TextOf(dialog);
        test::Press(dialog, IDOK);
    });
    ASSERT_TRUE(ChooseFile(nullptr, record));
    EXPECT_EQ(title, "Which program?");
    EXPECT_EQ(Cut(record.file), program);
    EXPECT_EQ(Cut(record.fileTitle), "sheets.exe");
    EXPECT_EQ(record.filterIndex, 2);
    EXPECT_NE(record.flags & OpenFileName::kFileMustExist, 0U);
}

TEST_F(FilePickerTest, TheWorkingFolderStaysWhatItIs) {
    const std::filesystem::path before = std::filesystem::current_path();
    OpenFileName record = RecordFor(folder.Write("Programs/sheets.exe", "MZ"));
    const test::DialogAnswer answer([](HWND dialog) { test::Press(dialog, IDOK); });
    ASSERT_TRUE(ChooseFile(nullptr, record));
    EXPECT_EQ(std::filesystem::current_path(), before);
}

TEST_F(FilePickerTest, ACancelChoosesNothing) {
    OpenFileName record = RecordFor("");
    const test::DialogAnswer answer([](HWND dialog) { test::Press(dialog, IDCANCEL); });
    EXPECT_FALSE(ChooseFile(nullptr, record));
    EXPECT_TRUE(answer.WasGiven());
}

}  // namespace
}  // namespace marlo::platform
