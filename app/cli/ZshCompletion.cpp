#include <algorithm>
#include <span>
#include <sstream>

#include "app/cli/CommandTable.h"
#include "app/cli/Completion.h"

namespace marlo::cli {

namespace {

constexpr const char* kStart = R"sh(#compdef marlo-cli
# Completes the command lines of marlo-cli in zsh.
# For all shells to come, as the file _marlo-cli in a folder of $fpath; for this shell alone, behind
# compinit:  source <(marlo-cli completion zsh)

# Completes one of the commands "$2" and on, and then what the function "$1-COMMAND" completes.
_marlo-cli-commands() {
    local place=$1 curcontext=$curcontext state state_descr ret=1
    local -a commands=("${@[2,-1]}") line
    local -A opt_args
    _arguments -C $shared ': :->command' '*::: :->operands' && ret=0
    case $state in
        (command)
            _describe -t commands command commands && ret=0
            ;;
        (operands)
            words=("$line[1]" "${words[@]}")
            (( ++CURRENT ))
            place+=-$line[1]
            (( $+functions[$place] )) && $place && ret=0
            ;;
    esac
    return ret
}

# Completes project files, whose type may be in capitals, and folders on the way to them.
_marlo-cli-projects() {
    local expl
    _wanted files expl 'project file' _path_files -g '(#i)*.cpr(-.)' -/
}

)sh";

constexpr const char* kEnd = R"sh(
if [[ $funcstack[1] == _marlo-cli ]]; then
    _marlo-cli "$@"
else
    compdef _marlo-cli marlo-cli
fi
)sh";

/// A text in single quotes, with a backslash in front of the marks that have a meaning for the
/// shell's completion.
std::string Escaped(std::string_view text, std::string_view marks) {
    std::string escaped;
    for (const char c : text) {
        if (marks.find(c) != std::string_view::npos)
            escaped += '\\';
        if (c == '\'')
            escaped += R"('\'')";
        else
            escaped += c;
    }
    return escaped;
}

/// What completes a value, and what it is called: ":DIR:_directories".
void WriteValue(std::ostream& script, const Argument& argument) {
    const Value& value = argument.value;
    const bool isNamed = !argument.valueName.empty() && value.kind != ValueKind::Choice;
    script << ':' << Escaped(isNamed ? argument.valueName : argument.name, ":") << ':';
    if (value.kind == ValueKind::Choice)
        script << '(' << value.ChoiceList() << ')';
    else if (value.kind == ValueKind::Project)
        script << "_marlo-cli-projects";
    else if (value.kind == ValueKind::Folder)
        script << "_directories";
    else if (value.kind == ValueKind::Path)
        script << "_files";
}

/// An option as `_arguments` takes it: "'(-0 --null)'{-0,--null}'[End ...]'".
void WriteOption(std::ostream& script, const Argument& argument) {
    const ValueKind kind = argument.value.kind;
    const bool endsLine = kind == ValueKind::Help || kind == ValueKind::Version;
    script << '\'';
    if (endsLine)
        script << "(- : *)";
    else if (!argument.shortName.empty())
        script << '(' << argument.shortName << ' ' << argument.name << ')';
    if (argument.shortName.empty())
        script << argument.name;
    else
        script << "'{" << argument.shortName << ',' << argument.name << "}'";
    if (argument.TakesValue())
        script << '=';
    script << '[' << Escaped(argument.help, "[]:\\") << ']';
    if (argument.TakesValue())
        WriteValue(script, argument);
    script << '\'';
}

void WriteArguments(std::ostream& script, std::span<const Argument> arguments,
                    const char* separator) {
    for (const Argument& argument : arguments) {
        if (!argument.IsOffered())
            continue;
        script << separator;
        if (argument.IsOption()) {
            WriteOption(script, argument);
            continue;
        }
        script << (argument.value.isList ? "'*" : "'");
        WriteValue(script, argument);
        script << '\'';
    }
}

bool HasSubcommands(std::string_view name) {
    return std::any_of(Commands().begin(), Commands().end(),
                       [&](const Command& command) { return command.parent == name; });
}

/// The call that completes the commands below one, which has a function.
void WriteCommands(std::ostream& script, std::string_view name, const std::string& function) {
    script << "    _marlo-cli-commands " << function;
    for (const Command& command : Commands())
        if (command.parent == name)
            script << " \\\n        '" << command.name << ":" << Escaped(command.help, ":\\")
                   << "'";
    script << "\n}\n";
}

}  // namespace

std::string ZshCompletion() {
    std::ostringstream script;
    script << kStart;
    for (const Command& command : Commands()) {
        std::string function = std::string("_marlo-cli-").append(command.Path());
        std::replace(function.begin(), function.end(), ' ', '-');
        script << function << "() {\n";
        if (HasSubcommands(command.name)) {
            WriteCommands(script, command.name, function);
            continue;
        }
        script << "    _arguments -S $shared";
        WriteArguments(script, command.arguments, " \\\n        ");
        script << "\n}\n";
    }
    script << "\n_marlo-cli() {\n    local -a shared=(";
    WriteArguments(script, SharedArguments(), "\n        ");
    script << "\n    )\n";
    WriteCommands(script, "", "_marlo-cli");
    script << kEnd;
    return script.str();
}

}  // namespace marlo::cli
