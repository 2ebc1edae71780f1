// The manual page and the help against the one description of all commands and options.

#include <algorithm>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "app/cli/CommandTable.h"
#include "tests/cli/CliTest.h"

namespace marlo::cli {
namespace {

using Names = std::set<std::string>;

std::string Replaced(const std::string& text, const std::string& pattern, const char* with) {
    return std::regex_replace(text, std::regex(pattern), with);
}

/// A line of the page as it is read: without its macro, and the quotes of a macro's words.
std::string Plain(std::string line) {
    line = Replaced(Replaced(line, R"(\\f[A-Z])", ""), R"(\\-)", "-");
    std::smatch macro;
    if (!std::regex_match(line, macro, std::regex(R"(\.([A-Z]+)( (.*))?)")))
        return line;
    std::string words = macro[3];
    // Macros of two letters set their words without spaces, but those in quotes.
    if (macro[1].length() == 2 && macro[1] != "SS" && macro[1] != "SH")
        words = Replaced(words, R"( (?=([^"]*"[^"]*")*[^"]*$))", "");
    return Replaced(words, "\"", "");
}

/// A part of the page below a heading, as lines that are read.
struct Part {
    std::string heading;
    std::string lines;
    Names bold;  ///< the words that stand in a line of their own, in bold
};

std::vector<Part> PartsOf(const std::string& page) {
    std::vector<Part> parts;
    std::istringstream lines(page);
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with(".SH") || line.starts_with(".SS"))
            parts.push_back({Plain(line), "", {}});
        else if (!parts.empty() && !line.starts_with(".\\\""))
            parts.back().lines += Plain(line) + "\n";
        if (line.starts_with(".B ") && line.find(' ', 3) == std::string::npos)
            parts.back().bold.insert(Plain(line));
    }
    return parts;
}

/// The options that a text names.
Names OptionsIn(const std::string& text) {
    static const std::regex option(R"((^|[^-\w])(--?[a-zA-Z0-9]+(-[a-z]+)*)(?![\w-]))");
    Names options;
    for (std::sregex_iterator at(text.begin(), text.end(), option), end; at != end; ++at)
        options.insert((*at)[2]);
    return options;
}

Names OptionsOf(std::span<const Argument> arguments) {
    Names options;
    for (const Argument& argument : arguments)
        for (const std::string_view name : {argument.name, argument.shortName})
            if (argument.IsOption() && !name.empty())
                options.emplace(name);
    return options;
}

/// A command's arguments with those of its subcommands.
std::vector<Argument> ArgumentsBelow(const Command& command) {
    std::vector<Argument> arguments;
    for (const Command& each : Commands())
        if (&each == &command || each.parent == command.name)
            arguments.insert(arguments.end(), each.arguments.begin(), each.arguments.end());
    return arguments;
}

Names CommandsOf(std::string_view parent) {
    Names names;
    for (const Command& command : Commands())
        if (command.parent == parent)
            names.emplace(command.name);
    return names;
}

/// "--format FORMAT", "REPORT".
std::string Shown(const Argument& argument) {
    std::string shown(argument.name);
    if (argument.IsOption() && !argument.valueName.empty())
        shown.append(" ").append(argument.valueName);
    return shown;
}

class ManualPageTest : public test::CliTest {
  protected:
    const Part& PartOf(std::string_view heading) const {
        const auto part = std::find_if(parts.begin(), parts.end(), [&](const Part& each) {
            return each.heading == heading || each.heading.starts_with(std::string(heading) + " ");
        });
        if (part != parts.end())
            return *part;
        ADD_FAILURE() << "the page has no part " << heading;
        return parts.front();
    }

    std::vector<Part> parts = PartsOf(folder.Read(MARLO_SOURCE "/docs/man/marlo-cli.1"));
};

TEST_F(ManualPageTest, ItsPartsAreTheCommands) {
    Names told;
    bool isCommand = false;
    for (const Part& part : parts) {
        const bool isChapter =
            part.heading.find_first_of("abcdefghijklmnopqrstuvwxyz") == std::string::npos;
        if (isChapter)
            isCommand = part.heading == "COMMANDS";
        else if (isCommand)
            told.insert(part.heading.substr(0, part.heading.find(' ')));
    }
    EXPECT_EQ(told, CommandsOf(""));
}

TEST_F(ManualPageTest, AHeadingHasTheCommandsArguments) {
    for (const Command& command : Commands()) {
        if (!command.parent.empty())
            continue;
        Names expected = CommandsOf(command.name);
        for (const Argument& argument : ArgumentsBelow(command)) {
            if (argument.IsOption())
                continue;
            if (argument.value.kind != ValueKind::Choice)
                expected.emplace(argument.name);
            for (const std::string_view choice : argument.value.choices)
                expected.emplace(choice);
        }
        std::istringstream heading(Replaced(
            PartOf(command.name).heading.substr(command.name.size()), R"([\[\]|]|\.\.\.)", " "));
        Names told;
        for (std::string word; heading >> word;)
            told.insert(word);
        EXPECT_EQ(told, expected) << command.name;
    }
}

TEST_F(ManualPageTest, APartHasTheCommandsOptionsAndNoOthers) {
    for (const Command& command : Commands()) {
        if (!command.parent.empty())
            continue;
        const Part& part = PartOf(command.name);
        const std::vector<Argument> arguments = ArgumentsBelow(command);
        std::string text = part.lines;
        // An option of another program.
        text = Replaced(text, "xargs -0", "");
        EXPECT_EQ(OptionsIn(text), OptionsOf(arguments)) << command.name;
        for (const Argument& argument : arguments) {
            const bool isTold = part.lines.find(Shown(argument)) != std::string::npos;
            EXPECT_TRUE(isTold || !argument.IsOption()) << Shown(argument);
        }
    }
    EXPECT_EQ(OptionsIn(PartOf("OPTIONS").lines), OptionsOf(SharedArguments()));
}

TEST_F(ManualPageTest, APartHasTheNamesThatCanBeChosenAndNoOthers) {
    for (const Command& command : Commands()) {
        if (!command.parent.empty())
            continue;
        const Part& part = PartOf(command.name);
        Names known = CommandsOf("");
        for (const Argument& argument : ArgumentsBelow(command)) {
            known.emplace(argument.name);
            for (const std::string_view choice : argument.value.choices) {
                known.emplace(choice);
                // Those that the line of the option, or another part, does not tell.
                const bool isTold =
                    std::string(argument.valueName).find(choice) != std::string::npos ||
                    part.lines.find("As for\nreport") != std::string::npos;
                EXPECT_TRUE(isTold || part.bold.contains(std::string(choice)))
                    << command.name << ' ' << argument.name << ' ' << choice;
            }
        }
        for (const std::string& word : part.bold)
            EXPECT_TRUE(known.contains(word)) << command.name << ": " << word;
    }
}

TEST_F(ManualPageTest, TheSynopsisHasEveryCommandWithItsArguments) {
    std::string synopsis = Replaced(PartOf("SYNOPSIS").lines, "[\n]", " ");
    Names told;
    const std::regex usage("marlo-cli ([a-z]+)((?:(?!marlo-cli).)*)");
    for (std::sregex_iterator at(synopsis.begin(), synopsis.end(), usage), end; at != end; ++at) {
        const std::string name = (*at)[1];
        const std::string rest = (*at)[2];
        const auto command = std::find_if(Commands().begin(), Commands().end(),
                                          [&](const Command& each) { return each.Path() == name; });
        ASSERT_NE(command, Commands().end()) << name;
        told.insert(name);
        const std::vector<Argument> arguments = ArgumentsBelow(*command);
        EXPECT_EQ(OptionsIn(rest), OptionsOf(arguments)) << name;
        for (const Argument& argument : arguments) {
            const bool isChoice = !argument.IsOption() && !argument.valueName.empty();
            const std::string shown = isChoice ? std::string(argument.valueName) : Shown(argument);
            EXPECT_NE(rest.find(shown), std::string::npos) << name << ": " << shown;
        }
        for (const std::string& subcommand : CommandsOf(name))
            EXPECT_NE(rest.find(subcommand), std::string::npos) << name << ' ' << subcommand;
    }
    EXPECT_EQ(told, CommandsOf(""));
}

TEST_F(ManualPageTest, TheHelpHasTheSameCommandsAndOptions) {
    const std::string help = Marlo({"--help"}).out;
    EXPECT_EQ(OptionsIn(help), OptionsOf(SharedArguments()));
    for (const Command& command : Commands()) {
        std::istringstream path(command.Path());
        std::vector<std::string> arguments;
        for (std::string word; path >> word;)
            arguments.push_back(word);
        arguments.emplace_back("--help");
        const std::string told = Marlo(arguments).out;
        EXPECT_TRUE(told.starts_with(command.help)) << told;
        Names expected = OptionsOf(SharedArguments());
        for (const Argument& argument : command.arguments) {
            if (!argument.IsOffered())
                continue;
            expected.merge(OptionsOf({&argument, 1}));
            EXPECT_NE(told.find(Shown(argument)), std::string::npos) << told;
            EXPECT_NE(told.find(argument.help), std::string::npos) << told;
        }
        EXPECT_EQ(OptionsIn(told), expected) << command.Path();
        const std::string above =
            command.parent.empty() ? help : Marlo({std::string(command.parent), "--help"}).out;
        EXPECT_NE(above.find(command.help), std::string::npos) << above;
    }
}

}  // namespace
}  // namespace marlo::cli
