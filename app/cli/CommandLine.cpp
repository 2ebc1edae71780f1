#include "app/cli/CommandLine.h"

#include <algorithm>
#include <iostream>
#include <map>
#include <memory>
#include <optional>
#include <sstream>
#include <utility>

#include <CLI/CLI.hpp>

#include "app/cli/CommandSupport.h"
#include "app/cli/TerminalText.h"
#include "platform/FileSystem.h"
#include "platform/Machine.h"
#include "reports/ReportView.h"
#include "reports/ResultSearch.h"

namespace marlo::cli {

namespace {

constexpr const char* kProgressHelp =
    "Show the progress also when the standard error stream is no terminal";
constexpr const char* kVersion = "marlo-cli " MARLO_VERSION;

/// The command line: the program's commands and options, and what they were set to.
class CommandLine {
  public:
    CommandLine() {
        // A path may begin with a slash on every system.
        app_.allow_windows_style_options(false);
        app_.require_subcommand(1);
        app_.fallthrough();
        app_.set_version_flag("--version", kVersion);
        app_.add_option("--app-folder", applicationFolder_,
                        "The application folder, with settings.ini and resultfiles in it "
                        "(default: the program's own folder)")
            ->type_name("DIR");
        app_.footer(
            "--app-folder DIR works with every command.\n"
            "Exit codes: 0 done, 1 something failed (said on the standard error stream),\n"
            "2 wrong usage, 130 cancelled.");
        AddCommands();
    }

    std::variant<Request, int> Read(std::vector<std::string> arguments) {
        // Where it takes several names, the parser takes one in square brackets for a list of
        // names.
        if (CommandIn(arguments) == "plugins")
            for (std::string& argument : arguments)
                if (argument.starts_with('[') && argument.ends_with(']'))
                    argument = platform::JoinPath(".", argument);
        std::reverse(arguments.begin(), arguments.end());  // the order that it wants
        try {
            app_.parse(std::move(arguments));
        } catch (const CLI::ParseError& ending) {
            return Report(ending);
        }
        return Request{applicationFolder_, command_};
    }

  private:
    void AddCommands() {
        AddCommand(
            app_, "plugins", "Print the plug-ins that project files use",
            [this](const Environment& environment) { return RunPlugins(environment, plugins_); },
            [this](CLI::App& command) { AddPluginsOptions(command); });
        AddCommand(
            app_, "search", "Search a folder of projects and write the result files",
            [this](const Environment& environment) { return RunSearch(environment, search_); },
            [this](CLI::App& command) { AddSearchOptions(command); });
        AddCommand(
            app_, "installed", "Take the inventory of the plug-ins that are installed here",
            [this](const Environment& environment) {
                return RunInstalled(environment, installed_);
            },
            [this](CLI::App& command) { AddInstalledOptions(command); });
        AddCommand(
            app_, "report", "Print a report from the result files",
            [this](const Environment& environment) { return RunReport(environment, report_); },
            [this](CLI::App& command) { AddReportOptions(command); });
        AddCommand(
            app_, "find", "Search the result files for a plug-in or a project",
            [this](const Environment& environment) { return RunFind(environment, find_); },
            [this](CLI::App& command) { AddFindOptions(command); });
        AddCommand(app_, "folders", "Print or change the list of VST plug-in folders",
                   RunFoldersList, [this](CLI::App& command) { AddFoldersCommands(command); });
        AddCommand(
            app_, "options", "Print or set the options of the program",
            [this](const Environment& environment) { return RunOptions(environment, options_); },
            [this](CLI::App& command) { AddOptionsOptions(command); });
        AddCommand(app_, "log", "Print when the last runs were, and what was searched", PrintRunLog,
                   AddNothing);
    }

    /// @param addOptions adds what the command takes, once the command is given: to add the options
    /// of all commands would take as long as all else at the program's start.
    void AddCommand(CLI::App& parent, const std::string& name, const std::string& description,
                    std::function<int(const Environment&)> command,
                    std::function<void(CLI::App&)> addOptions) {
        auto* const added = parent.add_subcommand(name, description);
        added->preparse_callback([added, addOptions = std::move(addOptions)](std::size_t) {
            added->set_version_flag("--version", kVersion);
            addOptions(*added);
        });
        // A command is called back after its own subcommand was.
        added->callback([this, added, command = std::move(command)] {
            if (added->get_subcommands().empty())
                command_ = command;
        });
    }

    static void AddNothing(CLI::App& /*command*/) {}

    /// The command that the arguments name; empty when they name none.
    static std::string CommandIn(const std::vector<std::string>& arguments) {
        for (std::size_t i = 0; i < arguments.size(); ++i) {
            if (!arguments[i].starts_with('-'))
                return arguments[i];
            if (arguments[i] == "--app-folder")
                ++i;
        }
        return {};
    }

    /// Adds an option that takes one of some names.
    template <class Value, class Target>
    static CLI::Option* AddChoice(CLI::App& command, const std::string& name, Target& target,
                                  const std::map<std::string, Value>& choices,
                                  const std::string& description) {
        return command
            .add_option_function<std::string>(
                name,
                [&target, choices](const std::string& choice) { target = choices.at(choice); },
                description)
            ->check(CLI::IsMember(choices).description(""));
    }

    static void AddListFormat(CLI::App& command, ListFormat& format) {
        AddChoice<ListFormat>(command, "--format", format,
                              {{"table", ListFormat::Table},
                               {"csv", ListFormat::Csv},
                               {"json", ListFormat::Json},
                               {"html", ListFormat::Html}},
                              "table (default), csv, json or html")
            ->type_name("FORMAT");
    }

    void AddPluginsOptions(CLI::App& command) {
        command.add_option("FILE", plugins_.files, "The project files")->required()->type_name("");
        command.add_flag("--merged", plugins_.merged,
                         "A line for each plug-in of a project rather than for each use; On when "
                         "any use is on");
        AddChoice<OutputFormat>(command, "--format", plugins_.format,
                                {{"table", OutputFormat::Table},
                                 {"csv", OutputFormat::Csv},
                                 {"json", OutputFormat::Json}},
                                "table (default), csv or json")
            ->type_name("FORMAT");
    }

    void AddSearchOptions(CLI::App& command) {
        command
            .add_option_function<std::string>(
                "FOLDER", [this](const std::string& folder) { search_.folder = folder; },
                "The folder to search (default: the one that was searched last)")
            ->type_name("");
        command.add_flag_callback(
            "--no-subfolders", [this] { search_.includeSubfolders = false; },
            "Leave the folders inside FOLDER out");
        command.add_flag("--progress", search_.showProgress, kProgressHelp);
    }

    void AddInstalledOptions(CLI::App& command) {
        if (platform::HasWinePrefixes())
            command
                .add_option_function<std::string>(
                    "--wine-prefix",
                    [this](const std::string& folder) { installed_.winePrefix = folder; },
                    "The Wine prefix whose DirectX plug-ins are listed (default: WINEPREFIX, else "
                    "~/.wine)")
                ->type_name("DIR");
        command.add_flag("--progress", installed_.showProgress, kProgressHelp);
    }

    void AddReportOptions(CLI::App& command) {
        AddChoice<std::string>(
            command, "REPORT", report_.kind,
            {{"used", report_kind::kUsed},
             {"unused", report_kind::kUnused},
             {"installed", report_kind::kAll},
             {"uninstalled", report_kind::kUninstalled}},
            "used; unused: installed, but in no project; installed; uninstalled: "
            "used, but not installed")
            ->required()
            ->type_name("used|unused|installed|uninstalled");
        AddListFormat(command, report_.format);
    }

    void AddFindOptions(CLI::App& command) {
        command.add_option("TEXT", find_.text, "What to look for")->required()->type_name("");
        find_.mode = search_mode::kProjectsByPlugin;
        AddChoice<std::string>(command, "--in", find_.mode,
                               {{"plugins", search_mode::kProjectsByPlugin},
                                {"projects", search_mode::kPluginsInProject}},
                               "Where: in the names of plug-ins (default) or of projects")
            ->type_name("plugins|projects");
        AddChoice<std::string>(command, "--match", find_.matchType,
                               {{"exact", match_type::kExact},
                                {"starts", match_type::kStartsWith},
                                {"ends", match_type::kEndsWith},
                                {"contains", match_type::kContains}},
                               "How a name matches (default: as chosen last in the window)")
            ->type_name("exact|starts|ends|contains");
        command.add_flag_callback(
            "--ignore-case", [this] { find_.ignoreCase = true; },
            "Take capitals and small letters for the same (default: as chosen last)");
        command.add_flag_callback(
            "--no-ignore-case", [this] { find_.ignoreCase = false; },
            "Tell capitals from small letters");
        AddListFormat(command, find_.format);
    }

    void AddFoldersCommands(CLI::App& command) {
        AddCommand(command, "list", "Print the folders (the default)", RunFoldersList, AddNothing);
        const auto addChange = [&](const std::string& name, const std::string& description,
                                   int (*change)(const Environment&, const std::string&)) {
            AddCommand(
                command, name, description,
                [this, change](const Environment& environment) {
                    return change(environment, vstFolder_);
                },
                [this](CLI::App& added) {
                    added.add_option("DIR", vstFolder_, "The folder")->required()->type_name("");
                });
        };
        addChange("add", "Add a folder at the end of the list", RunFoldersAdd);
        addChange("remove", "Take a folder off the list", RunFoldersRemove);
    }

    void AddOptionsOptions(CLI::App& command) {
        command
            .add_option_function<std::string>(
                "--csv-program", [this](const std::string& path) { options_.csvProgram = path; },
                "The program that opens the CSV result files")
            ->type_name("PATH");
        const auto addSwitch = [&](const std::string& name, std::optional<bool>& value,
                                   const std::string& description) {
            AddChoice<bool>(command, name, value, {{"on", true}, {"off", false}}, description)
                ->type_name("on|off");
        };
        addSwitch("--ignore-directx", options_.ignoreDirectX,
                  "Leave DirectX plug-ins out of the reports");
        addSwitch("--ignore-off", options_.ignoreOff,
                  "Leave plug-ins that are off out of the reports");
    }

    int Report(const CLI::ParseError& ending) {
        std::ostringstream out;
        std::ostringstream complaint;
        const int code = app_.exit(ending, out, complaint);
        std::cout << out.str();
        if (code == 0)
            return FinishOutput(kDone);
        std::cerr << PrintableLines(complaint.str());
        return kWrongUsage;
    }

    CLI::App app_{"Which plug-ins do your Cubase SX projects use, and which are installed here?",
                  "marlo-cli"};
    std::string applicationFolder_ = platform::ProgramFolder();
    PluginsOptions plugins_;
    SearchOptions search_;
    InstalledOptions installed_;
    ReportOptions report_;
    FindOptions find_;
    std::string vstFolder_;
    OptionChanges options_;
    std::function<int(const Environment&)> command_;
};

}  // namespace

std::variant<Request, int> ReadCommandLine(std::vector<std::string> arguments) {
    const auto line = std::make_shared<CommandLine>();
    auto answer = line->Read(std::move(arguments));
    if (auto* const request = std::get_if<Request>(&answer))
        // The command's options are the line's.
        request->command = [line, command = request->command](const Environment& environment) {
            return command(environment);
        };
    return answer;
}

}  // namespace marlo::cli
