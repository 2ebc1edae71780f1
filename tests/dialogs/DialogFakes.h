#pragma once

#include <cstddef>
#include <cstdint>
#include <exception>
#include <functional>
#include <iosfwd>
#include <string>
#include <vector>

#include "core/MainWindow.h"
#include "core/Settings.h"
#include "dialogs/FileBrowser.h"
#include "dialogs/frmOptions.h"
#include "tests/support/ApplicationTest.h"
#include "tests/support/FakeControls.h"

namespace marlo::test {

class FakeFileChooser final : public FileChooser {
  public:
    bool GetOpenFileName(OpenFileName& record) override;

    /// The user chooses a file.
    void Choose(const std::string& path);
    void Cancel() { answer = nullptr; }

    /// The records as they came.
    std::vector<OpenFileName> records;
    /// Fills the record in; nothing for a cancel.
    std::function<void(OpenFileName&)> answer;
    /// Thrown, if set.
    std::exception_ptr failure;
};

/// What the Options dialog shows.
struct ShownOptions {
    int tab = 0;
    std::string header;
    std::vector<std::string> folders;
    std::string selectedFolder;  ///< "(none)" for none
    std::string program;
    bool ignoreDX = false;
    bool ignoreOff = false;
    std::string searchDate;
    std::string searchPath;
    std::string inventoryDate;
    std::string note;

    bool operator==(const ShownOptions&) const = default;
};

/// Prints what is shown for a failed test.
void PrintTo(const ShownOptions& shown, std::ostream* out);

/// What a state has to be shown as. Fails the test for a folder whose key is not its text or whose
/// icon is not the first.
ShownOptions ShownAs(const OptionsState& state);

/// A dialog that writes down what it is asked, in `events`: "Show", "AutoSizeListViewColumns",
/// "SetLedger <colours in hexadecimal> <sizing kind>", "RemoveLedger", "Message: <text>", "Close".
class FakeOptionsView final : public OptionsView, private LedgerView {
  public:
    void Show(const OptionsState& state) override;
    void AutoSizeListViewColumns() override;
    LedgerView& Ledger() override { return *this; }
    MessageAnswer ShowMessage(const Message& message) override;
    void Close() override;

    std::vector<std::string> events;
    std::vector<Message> messages;
    ShownOptions shown;
    /// Called in the routines of these names, so that a test can look around or fail.
    std::function<void()> onShow;
    std::function<void()> onAutoSize;
    std::function<void()> onSetLedger;
    std::function<void()> onClose;

  private:
    void SetLedger(std::int32_t bar1Colour, std::int32_t bar2Colour,
                   std::int32_t sizingKind) override;
    void RemoveLedger() override { events.emplace_back("RemoveLedger"); }
};

/// How a dialog is asked to shade its rows.
inline constexpr const char* kSetLedger = "SetLedger ffffff fff3ef 2";

/// A test with an Options dialog.
class OptionsTestBase : public ApplicationTest {
  protected:
    void WriteFolders(const std::vector<std::string>& folders) const;
    std::string Setting(std::int16_t record) const { return getSetting(application, record); }
    std::vector<std::string> SettingsFrom50(std::size_t count) const;

    /// What the dialog has told the user, its text and its icon; fails the test when it was not
    /// one message with an Ok button and the application's title.
    void ExpectMessage(const std::string& text) const;

    /// A failure for a fake to throw; its number and description in the log are 70 and
    /// "Permission denied".
    [[noreturn]] static void Fail();

    FakeOptionsView view;
    FakeFolderChooser folders;
    FakeFileChooser files;
    FakePictureBox picture;
    FakePictureBox firstCsvBox;
    FakePictureBox secondCsvBox;
    frmOptions options{application, {view, folders, files, picture, firstCsvBox, secondCsvBox}};
};

}  // namespace marlo::test
