#include "tests/dialogs/DialogFakes.h"

#include <filesystem>
#include <ostream>
#include <sstream>

#include "core/RunTimeError.h"
#include "core/Settings.h"
#include "inventory/VstFolders.h"

namespace marlo::test {

namespace {

void Call(const std::function<void()>& function) {
    if (function)
        function();
}

std::string SelectedFolder(const ResultList& paths) {
    try {
        return std::string(paths.Text(paths.SelectedRow()));
    } catch (const RunTimeError&) {
        return "(none)";
    }
}

}  // namespace

bool FakeFileChooser::GetOpenFileName(OpenFileName& record) {
    records.push_back(record);
    if (failure)
        std::rethrow_exception(failure);
    if (!answer)
        return false;
    answer(record);
    return true;
}

void FakeFileChooser::Choose(const std::string& path) {
    answer = [path](OpenFileName& record) {
        record.file.replace(0, path.size() + 1, path.c_str(), path.size() + 1);
        record.fileTitle = std::filesystem::path(path).filename().string();
    };
}

void PrintTo(const ShownOptions& shown, std::ostream* out) {
    *out << "tab " << shown.tab << " \"" << shown.header << "\", folders {";
    for (const std::string& folder : shown.folders)
        *out << " \"" << folder << '"';
    *out << " } with " << shown.selectedFolder << " selected, program \"" << shown.program
         << "\", checks " << shown.ignoreDX << shown.ignoreOff << ", log \"" << shown.searchDate
         << "\" \"" << shown.searchPath << "\" \"" << shown.inventoryDate << "\", note \""
         << shown.note << '"';
}

ShownOptions ShownAs(const OptionsState& state) {
    const ResultList& paths = state.LstPaths;
    EXPECT_EQ(paths.ColumnCount(), 1);
    ShownOptions shown{.tab = state.tab,
                       .header = state.lblHeader,
                       .folders = {},
                       .selectedFolder = SelectedFolder(paths),
                       .program = state.imgcboPath,
                       .ignoreDX = state.chkIgnoreDX,
                       .ignoreOff = state.chkIgnoreOff,
                       .searchDate = state.Label1,
                       .searchPath = state.Text1,
                       .inventoryDate = state.Label7,
                       .note = state.Label2};
    for (std::size_t position = 1; position <= paths.RowCount(); ++position) {
        const ResultRow row = paths.RowAt(position);
        EXPECT_EQ(paths.Key(row), paths.Text(row));
        EXPECT_EQ(paths.SmallIcon(row), 1);
        shown.folders.emplace_back(paths.Text(row));
    }
    return shown;
}

void FakeOptionsView::Show(const OptionsState& state) {
    events.emplace_back("Show");
    Call(onShow);
    shown = ShownAs(state);
}

void FakeOptionsView::AutoSizeListViewColumns() {
    events.emplace_back("AutoSizeListViewColumns");
    Call(onAutoSize);
}

void FakeOptionsView::SetLedger(std::int32_t bar1Colour, std::int32_t bar2Colour,
                                std::int32_t sizingKind) {
    std::ostringstream event;
    event << "SetLedger " << std::hex << bar1Colour << " " << bar2Colour << " " << sizingKind;
    events.push_back(event.str());
    Call(onSetLedger);
}

MessageAnswer FakeOptionsView::ShowMessage(const Message& message) {
    events.push_back("Message: " + message.text);
    messages.push_back(message);
    return MessageAnswer::Ok;
}

void FakeOptionsView::Close() {
    events.emplace_back("Close");
    Call(onClose);
}

void OptionsTestBase::WriteFolders(const std::vector<std::string>& folders) const {
    WriteVstFolders(application, folders);
}

std::vector<std::string> OptionsTestBase::SettingsFrom50(std::size_t count) const {
    std::vector<std::string> values;
    for (std::size_t i = 0; i < count; ++i)
        values.push_back(Setting(static_cast<std::int16_t>(50 + i)));
    return values;
}

void OptionsTestBase::ExpectMessage(const std::string& text) const {
    ASSERT_EQ(view.messages.size(), 1U);
    const Message& message = view.messages.front();
    EXPECT_EQ(message.text, text);
    EXPECT_EQ(message.icon, MessageIcon::Exclamation);
    EXPECT_EQ(message.buttons, MessageButtons::Ok);
    EXPECT_EQ(message.title, "Marlo");
}

void OptionsTestBase::Fail() {
    throw RunTimeError(ErrorNumber::PermissionDenied);
}

}  // namespace marlo::test
