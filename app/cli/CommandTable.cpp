#include "app/cli/CommandTable.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <vector>

#include "app/StartOptions.h"
#include "platform/Machine.h"

namespace marlo::cli {

namespace {

// What a row says about a value: where it goes, as `Folder<&SearchOptions::folder>`.

template <class Options, class Field>
Field& FieldOf(CommandOptions& options, Field Options::*field) {
    return std::get<Options>(options).*field;
}

template <class Field>
void Put(Field& field, const std::string& value) {
    field = value;
}

void Put(std::vector<std::string>& field, const std::string& value) {
    field.push_back(value);
}

template <auto field>
void Set(CommandOptions& options, const std::string& value) {
    Put(FieldOf(options, field), value);
}

template <auto field>
constexpr Value Projects{.kind = ValueKind::Project, .isList = true, .set = Set<field>};
template <auto field>
constexpr Value Folder{.kind = ValueKind::Folder, .set = Set<field>};
template <auto field>
constexpr Value Path{.kind = ValueKind::Path, .set = Set<field>};
template <auto field>
constexpr Value Text{.kind = ValueKind::Text, .set = Set<field>};

/// A switch that makes a field true or false.
template <auto field, bool meaning>
constexpr Value Switch{.set = [](CommandOptions& options, const std::string& /*value*/) {
    FieldOf(options, field) = meaning;
}};

/// A name that can be chosen, and what it means.
template <class Meaning>
struct Named {
    std::string_view name;
    Meaning meaning;
};

template <auto& choices>
constexpr auto kNamesOf = [] {
    std::array<std::string_view, std::size(choices)> names{};
    std::transform(std::begin(choices), std::end(choices), names.begin(),
                   [](const auto& choice) { return choice.name; });
    return names;
}();

template <auto field, auto& choices>
constexpr Value Choice{
    .kind = ValueKind::Choice,
    .choices = kNamesOf<choices>,
    .set = [](CommandOptions& options, const std::string& name) {
        FieldOf(options, field) =
            std::find_if(std::begin(choices), std::end(choices), [&](const auto& choice) {
                return choice.name == name;
            })->meaning;
    }};

// What a row says about a command: the routine that does it, as `Run<RunSearch>`.

template <class... Options>
int Call(int (*command)(const Environment&, const Options&...), const Environment& environment,
         const CommandOptions& options) {
    return command(environment, std::get<Options>(options)...);
}

template <auto command>
int Run(const Environment& environment, const CommandOptions& options) {
    return Call(command, environment, options);
}

// The names that can be chosen.

constexpr Named<OutputFormat> kOutputFormats[] = {{"table", OutputFormat::Table},
                                                  {"csv", OutputFormat::Csv},
                                                  {"json", OutputFormat::Json},
                                                  {"jsonl", OutputFormat::JsonLines}};
constexpr Named<ListFormat> kListFormats[] = {{"table", ListFormat::Table},
                                              {"csv", ListFormat::Csv},
                                              {"json", ListFormat::Json},
                                              {"html", ListFormat::Html},
                                              {"paths", ListFormat::Paths}};
constexpr Named<Colours> kColours[] = {
    {"auto", Colours::Auto}, {"always", Colours::Always}, {"never", Colours::Never}};
constexpr Named<ReportKind> kReports[] = {{"used", ReportKind::Used},
                                          {"unused", ReportKind::Unused},
                                          {"installed", ReportKind::All},
                                          {"uninstalled", ReportKind::Uninstalled}};
constexpr Named<FindOptions::Where> kWhere[] = {{"plugins", FindOptions::Where::Plugins},
                                                {"projects", FindOptions::Where::Projects}};
constexpr Named<MatchType> kMatches[] = {{"exact", MatchType::Exact},
                                         {"starts", MatchType::StartsWith},
                                         {"ends", MatchType::EndsWith},
                                         {"contains", MatchType::Contains}};
constexpr Named<bool> kOnOff[] = {{"on", true}, {"off", false}};
constexpr Named<Shell> kShells[] = {
    {"bash", Shell::Bash}, {"zsh", Shell::Zsh}, {"fish", Shell::Fish}};

// The options that several commands have.

template <auto field>
constexpr Argument kProgress{
    .name = "--progress",
    .help = "Show the progress also when the standard error stream is no terminal",
    .value = Switch<field, true>};
template <class Options>
constexpr Argument kListFormat{.name = "--format",
                               .valueName = "FORMAT",
                               .help = "table (default), csv, json, html or paths",
                               .value = Choice<&Options::format, kListFormats>};
template <class Options>
constexpr Argument kNull{.name = "--null",
                         .shortName = "-0",
                         .help = "With --format paths, end each path with a NUL byte",
                         .value = Switch<&Options::endsWithNull, true>};
template <class Options>
constexpr Argument kColour{
    .name = "--color",
    .valueName = "auto|always|never",
    .help =
        "Whether a table shows greyed rows by colours (default: auto, or never where NO_COLOR "
        "is set)",
    .value = Choice<&Options::colours, kColours>};

// The arguments of each command.

constexpr Argument kShared[] = {{.name = "--help",
                                 .shortName = "-h",
                                 .help = "Print this help message and exit",
                                 .value = {.kind = ValueKind::Help}},
                                {.name = "--version",
                                 .help = "Display program version information and exit",
                                 .value = {.kind = ValueKind::Version}},
                                {.name = kAppFolderOption.name,
                                 .valueName = kAppFolderOption.valueName,
                                 .help = kAppFolderOption.help,
                                 .value = Folder<&SharedOptions::applicationFolder>}};

constexpr Argument kPlugins[] = {
    {.name = "FILE",
     .help = "The project files",
     .value = Projects<&PluginsOptions::files>,
     .isRequired = true},
    {.name = "--merged",
     .help = "A line for each plug-in of a project rather than for each use; On when any use is on",
     .value = Switch<&PluginsOptions::merged, true>},
    {.name = "--format",
     .valueName = "FORMAT",
     .help = "table (default), csv, json or jsonl",
     .value = Choice<&PluginsOptions::format, kOutputFormats>}};

constexpr Argument kSearch[] = {
    {.name = "FOLDER",
     .help = "The folder to search (default: the one that was searched last)",
     .value = Folder<&SearchOptions::folder>},
    {.name = "--no-subfolders",
     .help = "Leave the folders inside FOLDER out",
     .value = Switch<&SearchOptions::includeSubfolders, false>},
    kProgress<&SearchOptions::showProgress>};

constexpr Argument kInstalled[] = {{.name = kWinePrefixOption.name,
                                    .valueName = kWinePrefixOption.valueName,
                                    .help = kWinePrefixOption.help,
                                    .value = Folder<&InstalledOptions::winePrefix>,
                                    .isOffered = platform::HasWinePrefixes},
                                   kProgress<&InstalledOptions::showProgress>};

constexpr Argument kReport[] = {
    {.name = "REPORT",
     .valueName = "used|unused|installed|uninstalled",
     .help = "used; unused: installed, but in no project; installed; uninstalled: used, but not "
             "installed",
     .value = Choice<&ReportOptions::kind, kReports>,
     .isRequired = true},
    kListFormat<ReportOptions>,
    kNull<ReportOptions>,
    kColour<ReportOptions>};

constexpr Argument kFind[] = {
    {.name = "TEXT",
     .help = "What to look for",
     .value = Text<&FindOptions::text>,
     .isRequired = true},
    {.name = "--in",
     .valueName = "plugins|projects",
     .help = "Where: in the names of plug-ins (default) or of projects",
     .value = Choice<&FindOptions::where, kWhere>},
    {.name = "--match",
     .valueName = "exact|starts|ends|contains",
     .help = "How a name matches (default: as chosen last in the window)",
     .value = Choice<&FindOptions::matchType, kMatches>},
    {.name = "--ignore-case",
     .help = "Take capitals and small letters for the same (default: as chosen last)",
     .value = Switch<&FindOptions::ignoreCase, true>},
    {.name = "--no-ignore-case",
     .help = "Tell capitals from small letters",
     .value = Switch<&FindOptions::ignoreCase, false>},
    kListFormat<FindOptions>,
    kNull<FindOptions>,
    kColour<FindOptions>};

constexpr Argument kFolder[] = {{.name = "DIR",
                                 .help = "The folder",
                                 .value = Folder<&FolderOptions::folder>,
                                 .isRequired = true}};

constexpr Argument kOptions[] = {{.name = "--csv-program",
                                  .valueName = "PATH",
                                  .help = "The program that opens the CSV result files",
                                  .value = Path<&OptionChanges::csvProgram>},
                                 {.name = "--ignore-directx",
                                  .valueName = "on|off",
                                  .help = "Leave DirectX plug-ins out of the reports",
                                  .value = Choice<&OptionChanges::ignoreDirectX, kOnOff>},
                                 {.name = "--ignore-off",
                                  .valueName = "on|off",
                                  .help = "Leave plug-ins that are off out of the reports",
                                  .value = Choice<&OptionChanges::ignoreOff, kOnOff>}};

constexpr Argument kCompletion[] = {{.name = "SHELL",
                                     .valueName = "bash|zsh|fish",
                                     .help = "The shell that runs the script",
                                     .value = Choice<&CompletionOptions::shell, kShells>,
                                     .isRequired = true}};

constexpr Command kCommands[] = {
    {.name = "plugins",
     .help = "Print the plug-ins that project files use",
     .arguments = kPlugins,
     .run = Run<RunPlugins>},
    {.name = "search",
     .help = "Search a folder of projects and write the result files",
     .arguments = kSearch,
     .run = Run<RunSearch>},
    {.name = "installed",
     .help = "Take the inventory of the plug-ins that are installed here",
     .arguments = kInstalled,
     .run = Run<RunInstalled>},
    {.name = "report",
     .help = "Print a report from the result files",
     .arguments = kReport,
     .run = Run<RunReport>},
    {.name = "find",
     .help = "Search the result files for a plug-in or a project",
     .arguments = kFind,
     .run = Run<RunFind>},
    {.name = "folders",
     .help = "Print or change the list of VST plug-in folders",
     .run = Run<RunFoldersList>},
    {.name = "list",
     .parent = "folders",
     .help = "Print the folders (the default)",
     .run = Run<RunFoldersList>},
    {.name = "add",
     .parent = "folders",
     .help = "Add a folder at the end of the list",
     .arguments = kFolder,
     .run = Run<RunFoldersAdd>},
    {.name = "remove",
     .parent = "folders",
     .help = "Take a folder off the list",
     .arguments = kFolder,
     .run = Run<RunFoldersRemove>},
    {.name = "options",
     .help = "Print or set the options of the program",
     .arguments = kOptions,
     .run = Run<RunOptions>},
    {.name = "log",
     .help = "Print when the last runs were, and what was searched",
     .run = Run<PrintRunLog>},
    {.name = "completion",
     .help = "Print the script that completes command lines in a shell",
     .arguments = kCompletion,
     .answer = [](const CommandOptions& options) {
         return PrintCompletion(std::get<CompletionOptions>(options));
     }}};

}  // namespace

std::string Value::ChoiceList() const {
    std::string list;
    for (const std::string_view name : choices)
        list.append(list.empty() ? "" : " ").append(name);
    return list;
}

std::string Command::Path() const {
    return parent.empty() ? std::string(name) : std::string(parent) + " " + std::string(name);
}

std::span<const Argument> SharedArguments() {
    return kShared;
}

std::span<const Command> Commands() {
    return kCommands;
}

}  // namespace marlo::cli
