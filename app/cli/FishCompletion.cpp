#include <optional>
#include <span>
#include <sstream>

#include "app/cli/CommandTable.h"
#include "app/cli/Completion.h"

namespace marlo::cli {

namespace {

constexpr const char* kStart = R"sh(# Completes the command lines of marlo-cli in fish.
# For this shell alone:  marlo-cli completion fish | source

# Whether what is completed stands behind the commands "place", and behind as many of their operands
# as "count" tells, if it does.
function __marlo_cli_at --argument-names place count
)sh";

constexpr const char* kRest = R"sh(    set -l here
    set -l operands 0
    set -l takes no
    set -l behind no
    for word in (commandline -opc)[2..-1]
        if test $takes = yes
            set takes no
        else if test $behind = no -a "$word" = --
            set behind yes
        else if test $behind = no; and string match -q -- '-?*' "$word"
            contains -- "$word" $takers; and set takes yes
        else if test $operands -eq 0; and contains -- (string trim -- "$here $word") $commands
            set here (string trim -- "$here $word")
        else
            set operands (math $operands + 1)
        end
    end
    test "$here" = "$place"; or return
    not set -q count[1]; or test $operands -eq $count
end

# Prints the project files that the word may be completed to, whose type may be in capitals, and the
# folders on the way to them.
function __marlo_cli_projects
    __marlo_cli_paths | string match -ri '.*(?:/|\.cpr)$'
end

# The same, of folders alone.
function __marlo_cli_folders
    __marlo_cli_paths | string match -r '.*/$'
end

# Prints the files and folders that the shell itself would complete the word, or the value of an
# option in it, to.
function __marlo_cli_paths
    set -l word (commandline -ct | string replace -r '^--[^=]*=' '')
    complete -C "__marlo_cli_nothing $word" | string replace -r '\t.*' ''
end

complete -c marlo-cli -f
)sh";

/// A text in single quotes.
std::string Quoted(std::string_view text) {
    std::string quoted = "'";
    for (const char c : text) {
        if (c == '\'' || c == '\\')
            quoted += '\\';
        quoted += c;
    }
    return quoted += '\'';
}

/// What is offered for a value.
void WriteOffer(std::ostream& script, const Value& value) {
    if (value.kind == ValueKind::Choice)
        script << " -a " << Quoted(value.ChoiceList());
    else if (value.kind == ValueKind::Project)
        script << " -a '(__marlo_cli_projects)'";
    else if (value.kind == ValueKind::Folder)
        script << " -a '(__marlo_cli_folders)'";
    else if (value.kind == ValueKind::Path)
        script << " -F";
}

/// " -s 0 -l null -d 'With ...'".
void WriteOption(std::ostream& script, const Argument& argument) {
    if (!argument.shortName.empty())
        script << " -s " << argument.shortName.substr(1);
    script << " -l " << argument.name.substr(2);
    if (argument.TakesValue())
        script << (argument.value.kind == ValueKind::Path ? " -r" : " -x");
    WriteOffer(script, argument.value);
    script << " -d " << Quoted(argument.help);
}

/// The start of a line of what is offered behind some commands.
/// @param count how many operands have to be in front; nothing where that does not matter.
void WriteCondition(std::ostream& script, const std::string& commands, std::optional<int> count) {
    std::string condition = "__marlo_cli_at ";
    condition += Quoted(commands);
    if (count)
        condition.append(" ").append(std::to_string(*count));
    script << "complete -c marlo-cli -n " << Quoted(condition);
}

void WriteArguments(std::ostream& script, const Command& command) {
    int operands = 0;
    for (const Argument& argument : command.arguments) {
        if (!argument.IsOffered() || argument.value.kind == ValueKind::Text)
            continue;
        const bool hasPlace = !argument.IsOption() && !argument.value.isList;
        WriteCondition(script, command.Path(), hasPlace ? std::optional(operands++) : std::nullopt);
        if (argument.IsOption())
            WriteOption(script, argument);
        else
            WriteOffer(script, argument.value);
        script << '\n';
    }
}

/// The names of the commands and of the options that take a value, as lists of the shell.
void WriteLists(std::ostream& script) {
    std::string takers;
    const auto add = [&](std::span<const Argument> arguments) {
        for (const Argument& argument : arguments)
            if (argument.IsOption() && argument.TakesValue())
                takers.append(" ").append(argument.name);
    };
    add(SharedArguments());
    script << "    set -l commands";
    for (const Command& command : Commands()) {
        add(command.arguments);
        script << ' ' << Quoted(command.Path());
    }
    script << "\n    set -l takers" << takers << '\n';
}

}  // namespace

std::string FishCompletion() {
    std::ostringstream script;
    script << kStart;
    WriteLists(script);
    script << kRest;
    for (const Argument& argument : SharedArguments()) {
        script << "complete -c marlo-cli";
        WriteOption(script, argument);
        script << '\n';
    }
    for (const Command& command : Commands()) {
        WriteCondition(script, std::string(command.parent), 0);
        script << " -a " << command.name << " -d " << Quoted(command.help) << '\n';
        WriteArguments(script, command);
    }
    return script.str();
}

}  // namespace marlo::cli
