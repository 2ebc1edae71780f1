#include <cstddef>
#include <functional>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "core/Settings.h"
#include "dialogs/FileBrowser.h"
#include "dialogs/frmOptions.h"
#include "tests/dialogs/DialogFakes.h"
#include "tests/support/FailingAllocation.h"

namespace marlo {
namespace {

using Texts = std::vector<std::string>;

class DialogsOutOfMemoryTest : public test::OptionsTestBase {
  protected:
    DialogsOutOfMemoryTest() {
        application.onErrorLogged = [this](const ErrorEntry& entry) {
            EXPECT_EQ(entry.number, 7) << entry.procedure;
            logged.push_back(entry.procedure);
        };
        files.records.reserve(1);
        view.events.reserve(2);
    }

    /// Does something again and again, with the first, the second, ... allocation failing, until
    /// there is none left to fail.
    /// @param prepare called before each time.
    /// @param check called after each time in which an allocation failed.
    void Repeat(const std::function<void()>& prepare, const std::function<void()>& action,
                const std::function<void()>& check) {
        for (std::size_t number = 1;; ++number) {
            prepare();
            // What the fakes write down takes no memory, so that each time takes as much.
            files.records.clear();
            view.events.clear();
            view.messages.clear();
            logged.clear();
            {
                const test::FailingNthAllocation failing(number);
                action();
            }
            if (!test::FailingNthAllocation::HasFailed())
                return;
            check();
            procedures.insert(logged.begin(), logged.end());
        }
    }

    Texts logged;                      ///< in the last repetition
    std::set<std::string> procedures;  ///< logged in any repetition
};

TEST_F(DialogsOutOfMemoryTest, EachRoutineOfTheFilePickerLogsItsOwnFailures) {
    FileRequest request;
    bool isChosen = false;
    files.answer = [](OpenFileName& record) {
        record.file = "/a/program/with/a/long/path";
        record.fileTitle = "a program with a long title";
    };
    Repeat(
        [&] {
            request = {.fileName = "/a/program/to/start/with", .filter = "Programs of any kind|*"};
        },
        [&] { isChosen = ShowOpenDialog(application, files, request); },
        [&] { EXPECT_EQ(logged.size(), 1U); });
    EXPECT_EQ(procedures,
              (std::set<std::string>{"FileBrowser:ShowOpenDialog", "FileBrowser:StrZToStr",
                                     "FileBrowser:StripFileStruct", "FileBrowser:StripTerminator",
                                     "FileBrowser:VBGetOpenFileName"}));
    EXPECT_TRUE(isChosen) << "in the end, with enough memory";
}

TEST_F(DialogsOutOfMemoryTest, AFailureBeforeTheFilePickerIsShownLeavesTheRequestAsItWas) {
    FileRequest request{.fileName = "/a/program/to/start/with", .filter = "Programs of any kind|*"};
    // From the picker on, there is memory enough.
    files.answer = [](OpenFileName& /*record*/) { test::FailingNthAllocation::CallOff(); };
    Repeat([] {}, [&] { ShowOpenDialog(application, files, request); },
           [&] {
               EXPECT_EQ(request.fileName, "/a/program/to/start/with");
               EXPECT_EQ(request.filter, "Programs of any kind|*");
               EXPECT_EQ(request.filterIndex, 0);
           });
}

TEST_F(DialogsOutOfMemoryTest, ATextOfAFilterThatCannotBeTakenIsEmpty) {
    std::string entry;
    Repeat([] {}, [&] { entry = FilterLookup(application, "Programs of any kind", 1); },
           [&] { EXPECT_EQ(entry, ""); });
    EXPECT_EQ(procedures, std::set<std::string>{"FileBrowser:FilterLookup"});
    EXPECT_EQ(entry, "Programs of any kind") << "in the end";
}

TEST_F(DialogsOutOfMemoryTest, BrowsingIsLoggedWithoutTheDialogsNameAndTold) {
    files.Choose("/a/program/with/a/long/path");
    Repeat([] {}, [&] { options.cmdTab2Search_Click(); },
           [&] {
               if (logged == Texts{"cmdTab2Search_Click"})
                   ExpectMessage("An unexpected error occurred.");
               else
                   EXPECT_TRUE(view.messages.empty()) << logged.front();
           });
    EXPECT_TRUE(procedures.contains("cmdTab2Search_Click"));
    EXPECT_EQ(view.shown.program, "/a/program/with/a/long/path") << "in the end";
}

TEST_F(DialogsOutOfMemoryTest, AFolderThatCannotBeRemovedStaysAndSoDoesTheSelection) {
    WriteFolders({"/a/folder/with/a/long/path", "/b/folder/with/a/long/path"});
    options.Form_Load();
    options.SelectPath(1);
    const Texts all = view.shown.folders;
    // From the showing on, there is memory enough.
    view.onShow = [] { test::FailingNthAllocation::CallOff(); };
    Repeat([] {}, [&] { options.cmdRemove_Click(); },
           [&] {
               const test::ShownOptions shown = test::ShownAs(options.State());
               EXPECT_EQ(shown.folders, all);
               EXPECT_EQ(shown.selectedFolder, all.front());
               ExpectMessage("An unexpected error occurred.");
           });
    EXPECT_EQ(procedures, std::set<std::string>{"frmOptions:cmdRemove_Click"});
    EXPECT_EQ(view.shown.folders, Texts{all.back()}) << "in the end";
}

}  // namespace
}  // namespace marlo
