#include <span>
#include <sstream>

#include "app/cli/CommandTable.h"
#include "app/cli/Completion.h"

namespace marlo::cli {

namespace {

constexpr const char* kDescribeStart = R"sh(# Completes the command lines of marlo-cli in bash.
# For this shell alone:  source <(marlo-cli completion bash)

# Tells what can stand behind the commands "$1". Sets: commands; options, with what each takes; and
# operands, what each one is, where "many" means that the last one may come again. What is taken is
# words to choose from, or @project, @folder, @path or @text; nothing for a switch.
_marlo_cli_describe() {
    commands=() operands=() many=
)sh";

constexpr const char* kRest = R"sh(    esac
}

# Splits the line up to the cursor into words as the shell will take them, without their quotes.
# Sets: words; and of the last one, "kept", how many characters of it stand in front of what the
# completion replaces, and "expanded", whether the shell would expand it.
_marlo_cli_split() {
    local line=${COMP_LINE:0:COMP_POINT} word= inside= quote= before=0 c i
    words=() kept=0 expanded=
    for ((i = 0; i < ${#line}; ++i)); do
        c=${line:i:1}
        if [[ $quote ]]; then
            if [[ $c == "$quote" ]]; then
                quote= kept=$before
            elif [[ $quote == '"' && $c == '\' && ${line:i+1:1} == [\"\\\$\`] ]]; then
                word+=${line:i+1:1} i=$((i + 1))
            else
                [[ $quote == '"' && $c == [\$\`] ]] && expanded=yes
                word+=$c
            fi
        elif [[ $c == [[:space:]] ]]; then
            [[ $inside ]] && words+=("$word")
            word= inside= kept=0 expanded=
        else
            [[ ! $inside && $c == '~' ]] && expanded=home
            inside=yes
            if [[ $c == [\'\"] ]]; then
                quote=$c before=$kept kept=${#word}
            elif [[ $c == '\' ]]; then
                word+=${line:i+1:1} i=$((i + 1))
            else
                [[ $c == [\$\`] ]] && expanded=yes
                word+=$c
                [[ $COMP_WORDBREAKS == *"$c"* ]] && kept=${#word}
            fi
        fi
    done
    words+=("$word")
}

# Offers, behind "$2", the paths that begin with "$3": folders, and the files that "$1" takes.
_marlo_cli_paths() {
    local takes=$1 front=$2 start=$3 home= tilde= found
    if [[ $expanded == home && ! $front && $start =~ ^~[[:alnum:]_.-]*/ ]]; then
        tilde=${start%%/*}
        eval "home=$tilde"
        start=$home${start#"$tilde"}
    fi
    mapfile -d '' -t found < <(
        set +f
        shopt -s nullglob
        unset GLOBIGNORE
        for path in "$start"*; do
            if [[ -d $path || $takes == @path || $takes == @project && ${path,,} == *.cpr ]]; then
                printf '%s\0' "$path"
            fi
        done
    )
    [[ $tilde ]] && found=("${found[@]/#"$home"/$tilde}")
    COMPREPLY=("${found[@]/#/$front}")
    compopt -o filenames
}

_marlo_cli() {
    local IFS=' ' takes= behind= place= many= expanded= kept=0 count=0 front= word choice
    local -a words commands operands
    local -A options
    COMPREPLY=()
    _marlo_cli_split
    _marlo_cli_describe ''
    for word in "${words[@]:1:${#words[@]}-2}"; do
        if [[ $takes ]]; then
            takes=
        elif [[ ! $behind && $word == -- ]]; then
            behind=yes
        elif [[ ! $behind && $word == -?* ]]; then
            takes=${options[$word]-}
        elif ((count == 0)) && [[ " ${commands[*]} " == *" $word "* ]]; then
            place+=${place:+ }$word
            _marlo_cli_describe "$place"
        else
            count=$((count + 1))
        fi
    done

    word=${words[-1]}
    if [[ ! $takes ]]; then
        if [[ ! $behind && $word == --*=* ]]; then
            front=${word%%=*}=
            takes=${options[${front%=}]-}
        elif [[ ! $behind && $word == -* ]]; then
            takes=${!options[*]}
        elif ((count == 0 && ${#commands[@]} > 0)); then
            takes=${commands[*]}
        else
            ((many && count >= ${#operands[@]})) && count=$((${#operands[@]} - 1))
            takes=${operands[count]-}
        fi
    fi
    case $takes in
        @text) ;;
        @*)
            # The shell knows best what it would expand.
            if [[ $expanded == yes ]]; then
                compopt -o bashdefault -o default
            else
                _marlo_cli_paths "$takes" "$front" "${word#"$front"}"
            fi
            ;;
        *)
            for choice in $takes; do
                [[ $front$choice == "$word"* ]] && COMPREPLY+=("$front$choice")
            done
            ;;
    esac
    COMPREPLY=("${COMPREPLY[@]#"${word:0:kept}"}")
}

complete -F _marlo_cli marlo-cli
)sh";

std::string WhatIsTaken(const Value& value) {
    switch (value.kind) {
        case ValueKind::Choice:
            return std::string("'").append(value.ChoiceList()).append("'");
        case ValueKind::Project:
            return "@project";
        case ValueKind::Folder:
            return "@folder";
        case ValueKind::Path:
            return "@path";
        case ValueKind::Text:
            return "@text";
        default:
            return {};
    }
}

/// " [--null]= [-0]=", for those of the arguments that are options.
std::string Options(std::span<const Argument> arguments) {
    std::string options;
    for (const Argument& argument : arguments)
        for (const std::string_view name : {argument.name, argument.shortName})
            if (name.starts_with('-') && argument.IsOffered())
                options.append(" [").append(name).append("]=").append(WhatIsTaken(argument.value));
    return options;
}

void WriteOperands(std::ostream& script, std::span<const Argument> arguments) {
    for (const Argument& argument : arguments) {
        if (argument.IsOption())
            continue;
        script << "            operands+=(" << WhatIsTaken(argument.value) << ")\n";
        if (argument.value.isList)
            script << "            many=1\n";
    }
}

/// What can stand behind a command, which has a name and a path, or is the program itself.
void WritePlace(std::ostream& script, std::string_view name, std::string_view path,
                std::span<const Argument> arguments) {
    script << "        '" << path << "')\n";
    std::string commands;
    for (const Command& command : Commands())
        if (command.parent == name)
            commands.append(commands.empty() ? "" : " ").append(command.name);
    if (!commands.empty())
        script << "            commands=(" << commands << ")\n";
    if (const std::string options = Options(arguments); !options.empty())
        script << "            options+=(" << options.substr(1) << ")\n";
    WriteOperands(script, arguments);
    script << "            ;;\n";
}

}  // namespace

std::string BashCompletion() {
    std::ostringstream script;
    script << kDescribeStart << "    options=(" << Options(SharedArguments()).substr(1) << ")\n"
           << "    case $1 in\n";
    WritePlace(script, "", "", {});
    for (const Command& command : Commands())
        WritePlace(script, command.name, command.Path(), command.arguments);
    script << kRest;
    return script.str();
}

}  // namespace marlo::cli
