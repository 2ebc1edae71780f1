#include "ui/CommandItems.h"

#include "reports/ReportView.h"
#include "reports/ResultSearch.h"

namespace marlo {

// clang-format off
const std::array<CommandItem, kCommandItemCount> kCommandItems = {{
    {"Search SX Projects",       Command::SearchProjects, "",                         false, true,  Pane::Menu,  720, 1080},
    {"Find installed Plugins",   Command::FindInstalled,  "",                         false, false, Pane::Menu,  720, 1440},
    {"Show unused Plugins",      Command::ShowReport,     NameOf(ReportKind::Unused),       true,  false, Pane::Menu,  720, 2160},
    {"Show used Plugins",        Command::ShowReport,     NameOf(ReportKind::Used),         true,  false, Pane::Menu,  720, 2520},
    {"Show installed Plugins",   Command::ShowReport,     NameOf(ReportKind::All),          true,  true,  Pane::Menu,  720, 2880},
    {"Show uninstalled Plugins", Command::ShowReport,     NameOf(ReportKind::Uninstalled),  true,  false, Pane::Menu,  720, 3240},
    {"Plugins by Project",       Command::OpenResults,    "fln.csv",                  true,  true,  Pane::Menu,  720, 3720},
    {"Installed Plugins",        Command::OpenResults,    "installedplugins.csv",     true,  true,  Pane::Menu,  720, 4080},
    {"Options",                  Command::ShowOptions,    "",                         false, false, Pane::Menu,  720, 4800},
    {"Help",                     Command::ShowHelp,       "",                         false, true,  Pane::Menu,  720, 5160},
    {"About",                    Command::ShowAbout,      "",                         false, true,  Pane::Menu,  720, 5520},
    {CaptionOf(SearchMode::ProjectsByPlugin), Command::ToggleSearchMode, "",                   false, false, Pane::Right, 3028, 360},
    {"Cancel",                   Command::Cancel,         "",                         false, true,  Pane::Menu,  720, 1800},
}};
// clang-format on

}  // namespace marlo
