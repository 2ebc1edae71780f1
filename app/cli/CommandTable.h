#pragma once

#include <span>
#include <string>
#include <string_view>
#include <tuple>

#include "app/cli/Commands.h"

// The one description of the program's commands and options. The parser and its help, the shells'
// completions and the test of the manual page have all that they know from here.
namespace marlo::cli {

/// What a command line sets: the options of every command.
using CommandOptions =
    std::tuple<SharedOptions, PluginsOptions, SearchOptions, InstalledOptions, ReportOptions,
               FindOptions, FolderOptions, OptionChanges, CompletionOptions>;

enum class ValueKind {
    None,     ///< a switch
    Help,     ///< a switch that asks for the usage
    Version,  ///< a switch that asks for the version
    Choice,   ///< one of some names
    Project,  ///< a project file
    Folder,
    Path,  ///< a file of any type
    Text,
};

/// What an option or a positional argument takes, and what becomes of it.
struct Value {
    ValueKind kind = ValueKind::None;
    std::span<const std::string_view> choices{};  ///< the names, of a choice
    bool isList = false;                          ///< takes any number, one after the other
    /// Puts a value, which is one of the names of a choice and empty for a switch, where it
    /// belongs.
    void (*set)(CommandOptions& options, const std::string& value) = nullptr;

    /// The names of a choice, with spaces between them.
    std::string ChoiceList() const;
};

/// An option or a positional argument.
struct Argument {
    std::string_view name;         ///< of an option with its dashes
    std::string_view shortName{};  ///< the same for one letter, if there is one
    std::string_view valueName{};  ///< what the help calls the value
    std::string_view help;
    Value value;
    bool isRequired = false;
    bool (*isOffered)() = nullptr;  ///< whether this system has it; null for one that all have

    bool IsOption() const { return name.starts_with('-'); }
    bool TakesValue() const {
        return value.kind != ValueKind::None && value.kind != ValueKind::Help &&
               value.kind != ValueKind::Version;
    }
    bool IsOffered() const { return isOffered == nullptr || isOffered(); }
};

struct Command {
    std::string_view name;
    std::string_view parent{};  ///< the command that it is a subcommand of, if any
    std::string_view help;
    std::span<const Argument> arguments{};
    /// Does it. @return the program's exit code.
    int (*run)(const Environment& environment, const CommandOptions& options) = nullptr;
    /// The same, of a command that needs no application folder; one of the two is there.
    int (*answer)(const CommandOptions& options) = nullptr;

    /// The command's name behind that of its parent.
    std::string Path() const;
};

/// The options that work with every command, and without one.
std::span<const Argument> SharedArguments();

/// Every command, its subcommands right behind it.
std::span<const Command> Commands();

}  // namespace marlo::cli
