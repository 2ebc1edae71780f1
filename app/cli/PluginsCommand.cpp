#include <iostream>
#include <string>
#include <string_view>
#include <system_error>
#include <unordered_set>
#include <vector>

#include "app/cli/CommandSupport.h"
#include "app/cli/Commands.h"
#include "app/cli/JsonList.h"
#include "app/cli/Table.h"
#include "app/cli/TerminalText.h"
#include "app/cli/TerminalWindow.h"
#include "core/Records.h"
#include "core/Text.h"
#include "platform/FileSystem.h"
#include "platform/Terminal.h"
#include "scan/ProjectPlugins.h"
#include "scan/SearchLists.h"

namespace marlo::cli {

namespace {

/// A line of the output: a plug-in with its state, and the project that it is in.
struct Line {
    std::string_view project;
    PluginState plugin;
};

/// The name may hold commas and quotes of its own, so it is what the fields around it leave over.
std::string_view NameIn(const Line& line) {
    constexpr std::size_t typeFieldLength = std::string_view(R"(,"DirectX")").size();
    const std::size_t start = line.project.size() + std::string_view(R"("",")").size();
    const std::size_t end = line.plugin.key.size() - typeFieldLength - 1;
    return line.plugin.key.substr(start, end - start);
}

std::string_view TypeIn(const Line& line) {
    constexpr std::size_t typeLength = std::string_view("DirectX").size();
    return TrimSpaces(line.plugin.key.substr(line.plugin.key.size() - typeLength - 1, typeLength));
}

void PrintCsv(const std::vector<Line>& lines) {
    const bool raw = !platform::IsTerminal(platform::Stream::Out);
    for (const Line& line : lines) {
        const std::string record = RecordOf(line.plugin);
        if (raw)
            std::cout << record << "\r\n";
        else
            std::cout << Printable(record) << '\n';
    }
}

void PrintJson(const std::vector<Line>& lines, JsonList::Layout layout) {
    JsonList uses(std::cout, layout);
    for (const Line& line : lines) {
        uses.BeginObject();
        uses.AddText("project", line.project);
        uses.AddText("plugin", NameIn(line));
        uses.AddText("type", TypeIn(line));
        uses.AddText("state", line.plugin.state);
    }
    uses.End();
}

void PrintTable(const std::vector<Line>& lines) {
    Table table({"Plug-in", "Type", "State", "Project"}, MaxColumnWidth());
    for (const Line& line : lines)
        table.AddRow({std::string(NameIn(line)), std::string(TypeIn(line)),
                      std::string(line.plugin.state), std::string(line.project)});
    table.Print(std::cout);
}

void Print(const std::vector<Line>& lines, OutputFormat format) {
    switch (format) {
        case OutputFormat::Table:
            return PrintTable(lines);
        case OutputFormat::Csv:
            return PrintCsv(lines);
        case OutputFormat::Json:
            return PrintJson(lines, JsonList::Layout::Array);
        case OutputFormat::JsonLines:
            return PrintJson(lines, JsonList::Layout::Lines);
    }
}

/// The files' paths as a search would list them: in full.
std::vector<std::string> FullPaths(const std::vector<std::string>& files) {
    std::vector<std::string> paths;
    std::error_code ignored;
    for (const std::string& file : files)
        paths.push_back(platform::FullPath(file, ignored));
    return paths;
}

/// Scans a project and adds a line for each of its uses, or plug-ins that the lists did not have.
/// @param project has to stay for as long as the lines.
/// @return whether it was scanned to its end.
bool AddLines(const Application& application, SearchLists& lists, const std::string& project,
              bool merged, std::vector<Line>& lines) {
    std::size_t count =
        merged ? lists.ProjectPluginKeys.UpperBound() : lists.PluginOccurrences.size();
    const bool isScanned = GetPlugins4Project(application, lists, project);
    if (merged)
        for (; count < lists.ProjectPluginKeys.UpperBound(); ++count)
            lines.push_back({project,
                             {.key = lists.ProjectPluginKeys[count + 1],
                              .state = lists.ProjectPluginStates[count + 1]}});
    else
        for (; count < lists.PluginOccurrences.size(); ++count)
            lines.push_back({project, lists.PluginOccurrences[count]});
    return isScanned;
}

/// Scans projects and prints what they use.
/// @return whether all were scanned to their ends.
bool PrintProjects(const Application& application, const std::vector<std::string>& projects,
                   const PluginsOptions& options) {
    SearchLists lists;
    std::vector<Line> lines;
    bool allScansOk = true;
    for (const std::string& project : projects)
        allScansOk = AddLines(application, lists, project, options.merged, lines) && allScansOk;
    Print(lines, options.format);
    return allScansOk;
}

/// The same, but prints what a project uses when it is scanned. Only one project is in memory.
bool PrintOneByOne(const Application& application, const std::vector<std::string>& projects,
                   const PluginsOptions& options) {
    std::unordered_set<std::string_view> seen;
    bool allScansOk = true;
    for (const std::string& project : projects) {
        SearchLists lists;
        std::vector<Line> lines;
        allScansOk = AddLines(application, lists, project, options.merged, lines) && allScansOk;
        // A project that is named twice has its plug-ins once.
        if (!options.merged || seen.insert(project).second)
            Print(lines, options.format);
        if (!std::cout.flush())
            break;  // nobody reads the others
    }
    return allScansOk;
}

}  // namespace

int RunPlugins(const Environment& environment, const PluginsOptions& options) {
    TerminalWindow window(ProgressStyle::None);
    const Application application = ApplicationOf(environment, window);
    const std::vector<std::string> projects = FullPaths(options.files);
    const bool allScansOk = options.format == OutputFormat::JsonLines
                                ? PrintOneByOne(application, projects, options)
                                : PrintProjects(application, projects, options);
    return FinishOutput(allScansOk ? kDone : kFailed);
}

}  // namespace marlo::cli
