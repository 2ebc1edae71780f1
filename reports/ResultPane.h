#pragma once

#include <cstdint>
#include <string_view>
#include <utility>

#include "core/Application.h"
#include "core/ErrorLog.h"
#include "core/MainWindow.h"
#include "reports/ResultList.h"

namespace marlo {

/// The result list of the main window, with what those who fill it and act on it need to know.
/// Outlives none of what it refers to.
struct ResultPane {
    const Application& application;
    MainWindow& window;
    ResultList lstSongs{};
    /// The 1-based column that a click on its header sorted last; -1 after the list was built anew.
    std::int32_t lastSortColumn = 0;
};

/// What the user wants to be left out.
struct IgnoreSettings {
    bool directX = false;  ///< DirectX plug-ins
    bool off = false;      ///< uses that are off
};

/// Reads from the settings what is to be left out; a setting that cannot be read, which is logged
/// under "getSetting", leaves nothing out.
IgnoreSettings ReadIgnoreSettings(const Application& application);

/// The column that orders the rows of the list, 1-based; 0 for none.
int SortedColumn(const ResultPane& pane);

/// Begins to build the list anew: takes its columns and rows away, and hides it.
void BeginRebuild(ResultPane& pane);

/// Fits the columns of the list and shades its rows.
void FitAndShade(ResultPane& pane);

/// The icon of every row.
inline constexpr std::uint8_t kRowIcon = 1;

/// Whether a row is shown in grey.
bool IsGreyed(const ResultList& list, ResultRow row);

/// Shows a row in grey: the colour of its text, and of every cell behind it.
void GreyRow(ResultList& list, ResultRow row);

inline constexpr std::string_view kNoPlugins = "No plugins found";
inline constexpr std::string_view kNoProjects = "No projects found";

/// Adds a row that tells that there are no others, if there are none.
/// @param text one of the two above; its key too.
void AddPlaceholderIfEmpty(ResultList& list, std::string_view text);

/// Whether the list has such a row, and no other.
bool HoldsPlaceholder(const ResultList& list);

/// Runs `body` as a routine that the user started: a failure is logged under `procedure` and told.
/// @return whether `body` came to its end.
template <class Body>
bool RunForUser(const ResultPane& pane, const char* procedure, Body&& body) {
    const bool completed = RunGuarded(pane.application, procedure, std::forward<Body>(body));
    if (!completed)
        ShowUnexpectedError(pane.window);
    return completed;
}

}  // namespace marlo
