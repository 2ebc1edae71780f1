#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "reports/ResultPane.h"
#include "reports/SearchMatch.h"

namespace marlo {

/// What a search of the result files compares with the search text: plug-ins' names or projects.
enum class SearchMode { ProjectsByPlugin, PluginsInProject };

/// The caption of the command item that chooses the mode.
constexpr const char* CaptionOf(SearchMode mode) {
    return mode == SearchMode::ProjectsByPlugin ? "Search for Projects by Plugin"
                                                : "List Plugins in Project";
}

/// What the controls of the search pane hold.
struct SearchPane {
    SearchMode mode = SearchMode::ProjectsByPlugin;
    std::string txtSearchText;                                  ///< a field, as typed
    std::optional<MatchType> cboSearchType = MatchType::Exact;  ///< nothing when none is picked
    bool chkIgnoreCase = false;

    /// What a search shows, for a heading: a field.
    std::string Title() const { return std::string(CaptionOf(mode)) + ": " + txtSearchText; }
};

/// The match type that the settings hold; the first one when they hold none, or one that is not
/// there.
MatchType ReadMatchType(const Application& application);

/// Whether the settings hold that searches ignore case.
bool ReadIgnoreCase(const Application& application);

/// Adds a row to `lstSongs` for each line of "\resultfiles\fln.csv" that the search finds, in their
/// order: project, date of the project file, plug-in, and type and state unless the settings
/// ignore DirectX plug-ins or uses that are off, which are left out then. A plug-in that is not
/// installed is greyed. A list without rows gets the row "No projects found".
///
/// A failure is logged under "SearchResultFiles" and told, and the rows found before it stay.
/// A missing project file is one, and so is a line that comes twice.
///
/// @param typeColumn 1-based; only looked at where DirectX plug-ins are not ignored.
/// @param statusColumn 1-based; only looked at where uses that are off are not ignored.
void SearchResultFiles(ResultPane& pane, const SearchPane& search, std::int16_t typeColumn,
                       std::int16_t statusColumn);

/// Shows the result of a search: builds the columns and lets `SearchResultFiles` add the rows,
/// under an hourglass. The sorting of the list stays as it is. The next click on any column's
/// header counts as the first.
///
/// A failure outside of the search is logged under "cmdFind_Click" and told, and leaves the list
/// hidden.
void cmdFind_Click(ResultPane& pane, const SearchPane& search);

}  // namespace marlo
