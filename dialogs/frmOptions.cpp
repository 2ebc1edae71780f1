#include "dialogs/frmOptions.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>
#include <vector>

#include "core/ErrorLog.h"
#include "core/RunTimeError.h"
#include "core/Settings.h"
#include "core/Text.h"
#include "dialogs/RunLog.h"
#include "inventory/VstFolders.h"

namespace marlo {

namespace {

constexpr std::uint8_t kFolderIcon = 1;

constexpr std::array<const char*, 4> kHeaders = {
    "Select the Cubase SX Plugins and the shared VST Plugins folder",
    "Select a program to open up the .csv result files", "General settings", "Last run Log"};

ResultList EmptyPaths() {
    ResultList paths;
    paths.AddColumn("");
    return paths;
}

/// @return false when the folder is in the list already.
bool AddPath(ResultList& paths, std::string_view folder) {
    const auto row = paths.AddRowUnlessThere(folder, folder);
    if (row)
        paths.SetSmallIcon(*row, kFolderIcon);
    return row.has_value();
}

/// Adds folders to the first one that is in the list already.
/// @return whether all were added.
bool AddPaths(ResultList& paths, const std::vector<std::string>& folders) {
    return std::all_of(folders.begin(), folders.end(),
                       [&](const std::string& folder) { return AddPath(paths, folder); });
}

std::vector<std::string> TextsOf(const ResultList& paths) {
    std::vector<std::string> texts;
    for (std::size_t position = 1; position <= paths.RowCount(); ++position)
        texts.emplace_back(paths.Text(paths.RowAt(position)));
    return texts;
}

bool IsChecked(const Application& application, std::int16_t record) {
    return LeadingNumber(getSetting(application, record)) == 1;
}

const char* CheckText(bool isChecked) {
    return isChecked ? "1" : "0";
}

void Tell(OptionsView& view, const std::string& text) {
    view.ShowMessage({.text = text, .icon = MessageIcon::Exclamation});
}

}  // namespace

frmOptions::frmOptions(const Application& application, OptionsParts parts)
    : application_(application), parts_(parts) {
    state_.LstPaths = EmptyPaths();
}

void frmOptions::Form_Load() {
    const bool completed = RunGuarded(application_, "frmOptions:Form_Load", [&] {
        const bool areDistinct = AddPaths(state_.LstPaths, ReadVstFolders(application_));
        // Also those in front of one that is there already, and bands take rows that are shown.
        parts_.view.Show(state_);
        if (!areDistinct)
            throw RunTimeError(ErrorNumber::KeyNotUnique);
        ShadePaths();
        const std::string program = getSetting(application_, setting::kCsvProgram);
        SelectTab(0);
        LoadImageIntoCombo(program);
        state_.chkIgnoreDX = IsChecked(application_, setting::kIgnoreDirectX);
        state_.chkIgnoreOff = IsChecked(application_, setting::kIgnoreOff);
        RunLog log = ReadRunLog(application_);
        state_.Label1 = std::move(log.searchDate);
        state_.Text1 = std::move(log.searchPath);
        state_.Label7 = std::move(log.inventoryDate);
        state_.Label2 =
            "DirectX Plugins and 'Off' Plugins are still included in the comma seperated value "
            "files.";
        parts_.view.Show(state_);
    });
    if (!completed)
        Tell(parts_.view, "An unexpected error occurred");
}

void frmOptions::Tabs_Click(int tab) {
    const bool completed = RunGuarded(application_, "frmOptions:Tabs_Click", [&] {
        SelectTab(tab);
        parts_.view.Show(state_);
    });
    if (!completed)
        Tell(parts_.view, "An unexpected error occurred");
}

void frmOptions::ShadePaths() {
    parts_.view.AutoSizeListViewColumns();
    SetListViewLedger(application_, state_.LstPaths, parts_.view.Ledger(), kLedgerBar1, kLedgerBar2,
                      ledger::kIcons);
}

void frmOptions::SelectPath(std::size_t position) {
    if (position >= 1 && position <= state_.LstPaths.RowCount())
        state_.LstPaths.Select(position);
    else
        state_.LstPaths.SelectNone();
}

void frmOptions::cmdAdd_Click() {
    const bool completed = RunGuarded(application_, "frmOptions:cmdAdd_Click", [&] {
        const std::string folder =
            GetFolder(application_, parts_.folders, "", "Please select a folder:", false, true);
        if (folder.empty())
            return;
        if (!AddPath(state_.LstPaths, folder)) {
            Tell(parts_.view, "Path is already in the list");
            return;
        }
        parts_.view.Show(state_);
        ShadePaths();
    });
    if (!completed)
        Tell(parts_.view, "An unexpected error occurred. Clear the list and try again.");
}

void frmOptions::cmdRemove_Click() {
    const bool completed = RunGuarded(application_, "frmOptions:cmdRemove_Click", [&] {
        if (state_.LstPaths.RowCount() == 0)
            return;
        const std::size_t position = state_.LstPaths.SelectedPosition();
        if (position == 0)
            throw RunTimeError(ErrorNumber::ObjectNotSet);
        auto folders = TextsOf(state_.LstPaths);
        folders.erase(folders.begin() + static_cast<std::ptrdiff_t>(position - 1));
        ResultList remaining = EmptyPaths();
        AddPaths(remaining, folders);
        // The next press removes the next folder.
        if (!folders.empty())
            remaining.Select(std::min(position, folders.size()));
        state_.LstPaths = std::move(remaining);
        parts_.view.Show(state_);
    });
    if (!completed)
        Tell(parts_.view, "An unexpected error occurred.");
}

void frmOptions::cmdTab2Search_Click() {
    const bool completed = RunGuarded(application_, "cmdTab2Search_Click", [&] {
        FileRequest request{.fileName = getSetting(application_, setting::kCsvProgram),
                            .filter = "Program files (*.exe)|*.exe",
                            .dialogTitle = "Select an application to open the csv result files"};
        const bool isChosen = ShowOpenDialog(application_, parts_.files, request);
        pendingProgram_ = isChosen ? request.fileName : "";
        if (!pendingProgram_.empty())
            LoadImageIntoCombo(pendingProgram_);
    });
    if (!completed)
        Tell(parts_.view, "An unexpected error occurred.");
}

void frmOptions::cmdOk_Click() {
    const bool completed = RunGuarded(application_, "frmOptions:cmdOk_Click", [&] {
        WriteVstFolders(application_, TextsOf(state_.LstPaths));
        if (!pendingProgram_.empty()) {
            WriteSetting(application_, setting::kCsvProgram, pendingProgram_);
            LoadCsvAppIcons(application_, pendingProgram_, parts_.firstCsvBox, parts_.secondCsvBox);
        }
        WriteSetting(application_, setting::kIgnoreDirectX, CheckText(state_.chkIgnoreDX));
        WriteSetting(application_, setting::kIgnoreOff, CheckText(state_.chkIgnoreOff));
        parts_.view.Close();
    });
    if (!completed)
        Tell(parts_.view, "A problem occurred while writing to the file " + application_.folder +
                              "\\settings.ini. Please delete it and try again.");
}

void frmOptions::cmdCancel_Click() {
    parts_.view.Close();
}

void frmOptions::SelectTab(int tab) {
    if (tab < 0 || tab >= static_cast<int>(kHeaders.size()))
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
    state_.tab = tab;
    state_.lblHeader = kHeaders.at(static_cast<std::size_t>(tab));
}

/// Shows a program with its icon. A failure is logged only.
void frmOptions::LoadImageIntoCombo(const std::string& path) {
    RunGuarded(application_, "frmOptions:LoadImageIntoCombo", [&] {
        DrawSmallIcon(application_, path, parts_.Picture1);
        state_.imgcboPath = path;
        parts_.view.Show(state_);
    });
}

}  // namespace marlo
