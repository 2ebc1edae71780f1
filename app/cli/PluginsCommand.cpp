#include <iostream>
#include <string>
#include <string_view>
#include <system_error>
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

/// A project, and how many plug-ins the list that is printed has with it and those before it.
struct ScannedFile {
    std::string path;
    std::size_t countBehind = 0;
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

void PrintJson(const std::vector<Line>& lines) {
    JsonList uses(std::cout);
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
            return PrintJson(lines);
    }
}

}  // namespace

int RunPlugins(const Environment& environment, const PluginsOptions& options) {
    TerminalWindow window(ProgressStyle::None);
    const Application application = ApplicationOf(environment, window);
    SearchLists lists;
    bool allScansOk = true;
    std::vector<ScannedFile> scanned;
    for (const std::string& given : options.files) {
        // A search would list them by their full paths.
        std::error_code ignored;
        const std::string path = platform::FullPath(given, ignored);
        allScansOk = GetPlugins4Project(application, lists, path) && allScansOk;
        scanned.push_back({path, options.merged ? lists.ProjectPluginKeys.UpperBound()
                                                : lists.PluginOccurrences.size()});
    }
    std::vector<Line> lines;
    std::size_t count = 0;
    for (const auto& [path, countBehind] : scanned)
        for (; count < countBehind; ++count)
            lines.push_back({path, options.merged ? lists.ProjectPluginKeys[count + 1]
                                                  : lists.PluginOccurrences[count]});
    Print(lines, options.format);
    return FinishOutput(allScansOk ? kDone : kFailed);
}

}  // namespace marlo::cli
