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

/// A line of the output: a key record and a state, and the project that they are about.
struct Line {
    std::string_view project;
    std::string_view key;
    std::string_view state;
};

/// A project, and where its records end in the list that is printed.
struct ScannedFile {
    std::string path;
    std::size_t lastIndex = 0;
};

/// An occurrence record is a key record, a comma and the state in quotes.
Line LineOfOccurrence(std::string_view project, std::string_view occurrence) {
    const std::size_t comma = occurrence.rfind(',');
    const std::string_view stateField = occurrence.substr(comma + 1);
    return {project, occurrence.substr(0, comma), stateField.substr(1, stateField.size() - 2)};
}

Line LineOfKey(std::string_view project, const MergedStates::Entry& entry) {
    return {project, entry.key, entry.state};
}

/// The name may hold commas and quotes of its own, so it is what the fields around it leave over.
std::string_view NameIn(const Line& line) {
    constexpr std::size_t typeFieldLength = std::string_view(R"(,"DirectX")").size();
    const std::size_t start = line.project.size() + std::string_view(R"("",")").size();
    const std::size_t end = line.key.size() - typeFieldLength - 1;
    return line.key.substr(start, end - start);
}

std::string_view TypeIn(const Line& line) {
    constexpr std::size_t typeLength = std::string_view("DirectX").size();
    return TrimSpaces(line.key.substr(line.key.size() - typeLength - 1, typeLength));
}

void PrintCsv(const std::vector<Line>& lines) {
    const bool raw = !platform::IsTerminal(platform::Stream::Out);
    for (const Line& line : lines) {
        const std::string record = std::string(line.key) + "," + Quoted(line.state);
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
        uses.AddText("state", line.state);
    }
    uses.End();
}

void PrintTable(const std::vector<Line>& lines) {
    Table table({"Plug-in", "Type", "State", "Project"}, MaxColumnWidth());
    for (const Line& line : lines)
        table.AddRow({std::string(NameIn(line)), std::string(TypeIn(line)), std::string(line.state),
                      std::string(line.project)});
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
                                                : lists.PluginOccurrences.UpperBound()});
    }
    std::vector<Line> lines;
    std::size_t index = 1;
    for (const auto& [path, lastIndex] : scanned)
        for (; index <= lastIndex; ++index)
            lines.push_back(options.merged
                                ? LineOfKey(path, lists.ProjectPluginKeys[index])
                                : LineOfOccurrence(path, lists.PluginOccurrences[index]));
    Print(lines, options.format);
    return FinishOutput(allScansOk ? kDone : kFailed);
}

}  // namespace marlo::cli
