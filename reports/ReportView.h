#pragma once

#include <string>

#include "reports/ResultPane.h"

namespace marlo {

/// The kinds of report.
enum class ReportKind { Used, Unused, All, Uninstalled };

/// What a kind is called by those who ask for its report, for example "ShowUsed".
const char* NameOf(ReportKind kind);

/// Shows a report: builds the columns that its kind and the settings call for, lets the report add
/// its rows (see PluginReports.h), and sorts them by the first column. The next click on any
/// column's header counts as the first.
///
/// A report that fails tells so itself, and what it found is shown. A failure outside of it is
/// logged under "ShowInstalledPlugins" and told, and leaves the list hidden.
///
/// @param reportKind the name of a kind; with any other text, the list stays empty.
void ShowInstalledPlugins(ResultPane& pane, const std::string& reportKind);

}  // namespace marlo
