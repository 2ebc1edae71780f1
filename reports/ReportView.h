#pragma once

#include <string>

#include "reports/ResultPane.h"

namespace marlo {

/// The kinds of report, as the commands name them.
namespace report_kind {
inline constexpr const char* kUsed = "ShowUsed";
inline constexpr const char* kUnused = "ShowUnused";
inline constexpr const char* kAll = "ShowAll";
inline constexpr const char* kUninstalled = "ShowUninstalled";
}  // namespace report_kind

/// Shows a report: builds the columns that its kind and the settings call for, lets the report add
/// its rows (see PluginReports.h), and sorts them by the first column. The next click on any
/// column's header counts as the first.
///
/// A report that fails tells so itself, and what it found is shown. A failure outside of it is
/// logged under "ShowInstalledPlugins" and told, and leaves the list hidden.
///
/// @param reportKind one of `report_kind`; with any other, the list stays empty.
void ShowInstalledPlugins(ResultPane& pane, const std::string& reportKind);

}  // namespace marlo
