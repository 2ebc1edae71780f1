#include "app/cli/CommandLine.h"

#include <algorithm>
#include <iostream>
#include <memory>
#include <set>
#include <sstream>
#include <utility>

#include <CLI/CLI.hpp>

#include "app/cli/CommandSupport.h"
#include "app/cli/CommandTable.h"
#include "app/cli/TerminalText.h"
#include "platform/FileSystem.h"

namespace marlo::cli {

namespace {

constexpr const char* kVersion = "marlo-cli " MARLO_VERSION;

/// The names of an option as the parser takes them: "-h,--help".
std::string NamesOf(const Argument& argument) {
    const std::string name(argument.name);
    return argument.shortName.empty() ? name : std::string(argument.shortName) + "," + name;
}

/// The command line: the program's commands and options, and what they were set to.
class CommandLine {
  public:
    CommandLine() {
        // A path may begin with a slash on every system.
        app_.allow_windows_style_options(false);
        app_.require_subcommand(1);
        app_.fallthrough();
        for (const Argument& argument : SharedArguments())
            AddArgument(app_, argument);
        app_.footer(
            "--app-folder DIR works with every command.\n"
            "Exit codes: 0 done, 1 something failed (said on the standard error stream),\n"
            "2 wrong usage, 130 cancelled.");
        AddCommands(app_, "");
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
        if (command_->answer != nullptr)
            return command_->answer(options_);
        return Request{std::get<SharedOptions>(options_).applicationFolder,
                       [this](const Environment& environment) {
                           return command_->run(environment, options_);
                       }};
    }

  private:
    /// Adds the subcommands of a command, or the commands of the program.
    void AddCommands(CLI::App& parent, std::string_view parentName) {
        for (const Command& command : Commands())
            if (command.parent == parentName)
                AddCommand(parent, command);
    }

    void AddCommand(CLI::App& parent, const Command& command) {
        auto* const added =
            parent.add_subcommand(std::string(command.name), std::string(command.help));
        for (const Argument& argument : SharedArguments())
            if (argument.value.kind == ValueKind::Version)
                AddArgument(*added, argument);
        for (const Argument& argument : command.arguments)
            if (argument.IsOffered())
                AddArgument(*added, argument);
        AddCommands(*added, command.name);
        // A command is called back after its own subcommand was.
        added->callback([this, added, &command] {
            if (added->get_subcommands().empty())
                command_ = &command;
        });
    }

    void AddArgument(CLI::App& command, const Argument& argument) {
        const std::string names = NamesOf(argument);
        const std::string help(argument.help);
        switch (argument.value.kind) {
            case ValueKind::Help:
                command.set_help_flag(names, help);
                break;
            case ValueKind::Version:
                command.set_version_flag(names, kVersion, help);
                break;
            case ValueKind::None:
                command.add_flag_callback(
                    names, [this, &argument] { argument.value.set(options_, ""); }, help);
                break;
            default:
                AddArgumentWithValue(command, argument);
        }
    }

    void AddArgumentWithValue(CLI::App& command, const Argument& argument) {
        const Value& value = argument.value;
        CLI::callback_t set = [this, &value](const CLI::results_t& given) {
            for (const std::string& text : given)
                value.set(options_, text);
            return true;
        };
        auto* const added =
            command.add_option(NamesOf(argument), std::move(set), std::string(argument.help));
        added->type_name(std::string(argument.valueName))->required(argument.isRequired);
        if (value.isList)
            added->expected(CLI::detail::expected_max_vector_size);
        if (value.kind == ValueKind::Choice)
            added->check(
                CLI::IsMember(std::set<std::string>(value.choices.begin(), value.choices.end()))
                    .description(""));
    }

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
    CommandOptions options_;
    const Command* command_ = nullptr;
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
