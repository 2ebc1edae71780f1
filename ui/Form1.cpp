#include "ui/Form1.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

#include "core/ErrorLog.h"
#include "core/Files.h"
#include "core/ResultFileNames.h"
#include "core/Settings.h"
#include "inventory/FileAssociation.h"
#include "inventory/InstalledPlugins.h"
#include "inventory/VstFolders.h"
#include "platform/FileSystem.h"
#include "reports/AlternateColourOnListview.h"
#include "reports/ReportView.h"
#include "scan/SearchRun.h"
#include "ui/OpenResultsFile.h"
#include "ui/ResultListView.h"
#include "ui/SaveList.h"

namespace marlo {

namespace {

constexpr std::int32_t kDonateSeconds = 60;
constexpr int kTimerInterval = 1000;  // milliseconds
constexpr int kEnter = 13;

constexpr const char* kHelpPage = "/2006/10/table-of-contents.html";
constexpr const char* kDonatePage = "/2006/10/donate.html";

/// A page of a web site, or of one in a folder.
std::string PageOf(const std::string& site, std::string_view path) {
    if (site.find("://") != std::string::npos)
        return site + std::string(path);
    std::string page = site;
    while (!path.empty()) {
        path.remove_prefix(1);
        const std::string_view name = path.substr(0, path.find('/'));
        page = platform::JoinPath(page, name);
        path.remove_prefix(name.size());
    }
    return page;
}

}  // namespace

Form1::Form1(const Application& application, FormView& view, std::string helpSite)
    : application_(application),
      view_(view),
      helpSite_(std::move(helpSite)),
      pane_{application, *this} {
    for (std::size_t i = 0; i < kCommandItemCount; ++i)
        state_.cmdbuttons.at(i).caption = kCommandItems.at(i).caption;
}

void Form1::Form_Load() {
    RunForUser(pane_, "Form_Load", [&] {
        ClearStatusBar();
        LoadSearchControls();
        FillInCsvProgram(application_);
        // Desktops look an icon up among all of their programs, and nothing has to wait for it.
        view_.Later([this] {
            LoadCsvAppIcons(application_, getSetting(application_, setting::kCsvProgram),
                            view_.CsvIcon(0), view_.CsvIcon(1));
        });
        FillInVstFolder(application_);
        donateCountdown_ = kDonateSeconds;
        view_.StartTimer(kTimerInterval);
        layout_ = DesignLayout(view_.Sizes());
        Form_Resize();
        view_.SetProgramIcon(ApplicationPath(application_, "\\icons\\plug_48x48.ico"));
        EnableButtons();
    });
}

void Form1::LoadSearchControls() {
    view_.FillSearchTypes({kMatchTypes.begin(), kMatchTypes.end()});
    // A position that the list does not have comes from a damaged file, and must not end the start.
    view_.SetSearchType(static_cast<int>(ReadMatchType(application_)));
    view_.SetIgnoreCase(ReadIgnoreCase(application_));
}

void Form1::Form_Resize() {
    IgnoreFailures([&] {
        if (view_.IsMinimised())
            return;
        layout_ = LaidOut(layout_, view_.ClientArea(), state_.isDonateVisible);
        IgnoreFailures([&] { view_.Place(layout_); });
        IgnoreFailures([&] { AutoSizeListViewColumns(); });
        if (pane_.lstSongs.RowCount() > 0)
            SetListViewLedger(kLedgerBar1, kLedgerBar2, ledger::kIcons);
    });
}

void Form1::Form_ScaleChange() {
    IgnoreFailures([&] { layout_ = DesignLayout(view_.Sizes()); });
    Form_Resize();
}

bool Form1::Form_QueryUnload() {
    if (!isRunning_)
        return true;
    isClosing_ = true;
    SetCancelTag(kCancelTag);
    return false;
}

void Form1::Form_Unload() {
    IgnoreFailures([&] {
        WriteSetting(application_, setting::kSearchType, std::to_string(view_.SearchType()));
        WriteSetting(application_, setting::kIgnoreCase, view_.IgnoreCase() ? "1" : "0");
    });
}

void Form1::cmdButtons_Click(int index) {
    RunForUser(pane_, "cmdButtons_Click", [&] {
        if (index >= 0 && index < static_cast<int>(kCommandItemCount))
            RunCommand(kCommandItems.at(static_cast<std::size_t>(index)));
    });
}

void Form1::RunCommand(const CommandItem& item) {
    switch (item.command) {
        case Command::SearchProjects:
            return RunLong([&] { GetPlugins4AllProjects(application_, *this, lists_); });
        case Command::FindInstalled:
            return RunLong([&] { RefreshPlugins(application_, *this); });
        case Command::ShowReport:
            return ShowReport(item.argument);
        case Command::OpenResults:
            return OpenResultsFile(application_, *this, item.argument);
        case Command::ShowOptions:
            return view_.ShowOptions();
        case Command::ShowHelp:
            return ShowHelp();
        case Command::ShowAbout:
            return view_.ShowAbout();
        case Command::ToggleSearchMode:
            return ToggleSearchMode();
        case Command::Cancel:
            return SetCancelTag(kCancelTag);
    }
}

template <class Body>
void Form1::RunLong(Body body) {
    isRunning_ = true;
    try {
        body();
    } catch (...) {
        EndRun();
        throw;
    }
    EndRun();
}

void Form1::EndRun() {
    isRunning_ = false;
    if (isClosing_)
        view_.Close();
}

void Form1::ShowReport(const char* kind) {
    ShowInstalledPlugins(pane_, kind);
    listTitle_ = pane_.lstSongs.ColumnCount() > 0 ? pane_.lstSongs.Header(1) : "";
    view_.ShowList();
}

int Form1::OpenPage(const char* path) const {
    return application_.desktop.ShellExecute({.file = PageOf(helpSite_, path)});
}

void Form1::ShowHelp() {
    if (OpenPage(kHelpPage) <= platform::kLastShellFailure)
        ShowMessage({.text = "Cannot show the help file"});
}

void Form1::ToggleSearchMode() {
    searchMode_ = searchMode_ == SearchMode::ProjectsByPlugin ? SearchMode::PluginsInProject
                                                              : SearchMode::ProjectsByPlugin;
    state_.cmdbuttons.at(kSearchModeItem).caption = CaptionOf(searchMode_);
    view_.Show(state_);
}

void Form1::Timer1_Timer() {
    if (--donateCountdown_ != 0)
        return;
    state_.isDonateEnabled = false;
    state_.isDonateVisible = false;
    view_.Show(state_);
    view_.StopTimer();
    Form_Resize();
}

void Form1::btnDonate_Click() {
    RunGuarded(application_, "lstSongs_ColumnClick", [&] {
        if (OpenPage(kDonatePage) <= platform::kLastShellFailure)
            ShowMessage(
                {.text = "Cannot show the donations page", .icon = MessageIcon::Exclamation});
    });
}

SearchPane Form1::CurrentSearch() const {
    return {.mode = searchMode_,
            .txtSearchText = view_.SearchText(),
            .cboSearchType = MatchTypeAt(view_.SearchType()),
            .chkIgnoreCase = view_.IgnoreCase()};
}

void Form1::cmdFind_Click() {
    const SearchPane search = CurrentSearch();
    marlo::cmdFind_Click(pane_, search);
    listTitle_ = search.Title();
    view_.ShowList();
}

void Form1::txtSearchText_KeyPress(int character) {
    if (character == kEnter && state_.isFindEnabled)
        IgnoreFailures([&] { cmdFind_Click(); });
}

void Form1::lstSongs_ColumnClick(int column) {
    marlo::lstSongs_ColumnClick(pane_, column);
    view_.ShowList();
}

void Form1::lstSongs_DblClick() {
    marlo::lstSongs_DblClick(pane_);
}

void Form1::SaveList(const std::string& path) {
    marlo::SaveList(pane_, listTitle_, path);
}

void Form1::cmdbuttons_MouseMove(std::size_t index) {
    IgnoreFailures([&] {
        FormState::Item& item = state_.cmdbuttons.at(index);
        if (item.isHovered)
            return;
        item.isHovered = true;
        view_.Show(state_);
    });
}

template <class IsMeant>
void Form1::ClearHoverMarks(IsMeant isMeant) {
    IgnoreFailures([&] {
        bool hasChanged = false;
        for (std::size_t i = 0; i < kCommandItemCount; ++i) {
            bool& isHovered = state_.cmdbuttons.at(i).isHovered;
            if (!isHovered || !isMeant(i))
                continue;
            isHovered = false;
            hasChanged = true;
        }
        if (hasChanged)
            view_.Show(state_);
    });
}

void Form1::Form_MouseMove() {
    ClearHoverMarks([](std::size_t /*index*/) { return true; });
}

void Form1::imgMenu_MouseMove() {
    ClearHoverMarks([](std::size_t index) { return kCommandItems.at(index).pane == Pane::Menu; });
}

void Form1::imgRightPane_MouseMove() {
    ClearHoverMarks([](std::size_t index) { return kCommandItems.at(index).pane == Pane::Right; });
}

void Form1::SetText1(const std::string& text) {
    view_.ShowText1(text);
}

void Form1::SetText2(const std::string& text) {
    view_.ShowText2(text);
}

void Form1::ClearStatusBar() {
    RunGuarded(application_, "ClearStatusBar", [&] {
        view_.ShowText1("");
        view_.ShowText2("");
    });
}

void Form1::Repaint() {
    view_.ShowList();
    view_.Repaint();
}

void Form1::LetEventsRun() {
    view_.LetEventsRun();
}

void Form1::SetHourglass(bool isShown) {
    view_.SetHourglass(isShown);
}

void Form1::AutoSizeListViewColumns() {
    view_.AutoSizeListViewColumns();
}

void Form1::SetListViewLedger(std::int32_t bar1Colour, std::int32_t bar2Colour,
                              std::int32_t sizingKind) {
    marlo::SetListViewLedger(application_, pane_.lstSongs, view_.Ledger(), bar1Colour, bar2Colour,
                             sizingKind);
}

void Form1::DisableButtons() {
    RunGuarded(application_, "DisableButtons", [&] {
        for (FormState::Item& item : state_.cmdbuttons)
            item.isEnabled = false;
        state_.cmdbuttons.at(kCancelItem).isEnabled = true;
        state_.isDonateEnabled = false;
        state_.isFindEnabled = false;
        view_.Show(state_);
    });
}

bool Form1::HasAllResultFiles() const {
    constexpr std::array files = {result_file::kOccurrences, result_file::kProjectPlugins,
                                  result_file::kUsedPlugins, result_file::kInstalledPlugins};
    return std::all_of(files.begin(), files.end(), [&](const char* file) {
        return FileExists(application_, ApplicationPath(application_, file));
    });
}

void Form1::EnableButtons() {
    RunGuarded(application_, "EnableButtons", [&] {
        const bool hasResults = HasAllResultFiles();
        for (std::size_t i = 0; i < kCommandItemCount; ++i)
            state_.cmdbuttons.at(i).isEnabled =
                i != kCancelItem && (hasResults || !kCommandItems.at(i).needsResultFiles);
        state_.isDonateEnabled = true;
        state_.isFindEnabled = hasResults;
        view_.Show(state_);
    });
}

MessageAnswer Form1::ShowMessage(const Message& message) {
    if (isClosing_)
        return MessageAnswer::Cancel;
    view_.ShowList();  // which may be half built
    return view_.ShowMessage(message);
}

std::string Form1::PickFolder(const std::string& prompt, const std::string& startFolder) {
    return GetFolder(application_, view_.Folders(), startFolder, prompt, false, true);
}

}  // namespace marlo
