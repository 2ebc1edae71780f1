// The scripts of `marlo-cli completion` in the shells that they are for, each in a terminal.

#include <algorithm>
#include <optional>
#include <ostream>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/cli/CliTest.h"

namespace marlo {
namespace {

using test::Program;
using Words = std::vector<std::string>;

/// What shells do differently.
struct Shell {
    std::string name;
    Words start;
    /// Has it show no more than is asked for, and insert whatever is offered on Escape and *.
    std::string setUp;
    std::string load;  ///< with the program's path for @, runs the script
    /// Has the program's name print the words behind it, ended by a number that goes up.
    std::string printWords;
    std::string folderEnd;  ///< what a folder is completed with, where nothing follows

    friend void PrintTo(const Shell& shell, std::ostream* out) { *out << shell.name; }
};

const std::vector<Shell> kShells = {
    {.name = "bash",
     .start = {"/bin/bash", "--norc", "--noprofile", "-i"},
     .setUp = "PS1=''; bind 'set enable-bracketed-paste off'; bind '\"\\e*\": insert-completions'",
     .load = "source <('@' completion bash)",
     .printWords = R"(marlo-cli() { printf '<'; printf '%s|' "$@"; printf '>%d>\n' $((++run)); })",
     .folderEnd = "/"},
    {.name = "zsh",
     .start = {"/usr/bin/zsh", "-f", "-i"},
     .setUp = "PS1='' PS2=''; unset zle_bracketed_paste; unsetopt auto_list; autoload -U compinit; "
              "compinit -u -D; zstyle ':completion:all:*' completer _all_matches _complete; "
              "zstyle ':completion:all:*' insert yes; zle -C all complete-word _generic; "
              "bindkey '\\e*' all",
     .load = "source <('@' completion zsh)",
     .printWords = R"(marlo-cli() { printf '<'; printf '%s|' "$@"; printf '>%d>\n' $((++run)); })",
     .folderEnd = ""},
    {.name = "fish",
     .start = {"/usr/bin/fish", "--no-config", "-i"},
     .setUp = "function fish_prompt; end; function fish_right_prompt; end; "
              "set -g fish_autosuggestion_enabled 0",
     .load = "'@' completion fish | source",
     .printWords = "function marlo-cli; set -g run (math $run + 1); printf '<'; "
                   "printf '%s|' $argv; printf '>%d>\\n' $run; end; set -g run 0",
     .folderEnd = "/"}};

class CompletionTest : public test::CliTest, public testing::WithParamInterface<Shell> {
  protected:
    CompletionTest() {
        test::SetVariable("TERM", "dumb");
        test::SetVariable("LC_ALL", "C.UTF-8");
        test::SetVariable("HOME", folder.Path());
        for (const std::string name : {"LOUD.CPR", "notes.txt", "old.cpr.bak", "it's.cpr",
                                       "cost $5.cpr", "R\u00E9verb \"q\".cpr", "a=b.cpr"})
            folder.Write("work/songs/" + name, "");
        folder.Write("work/My Songs/Sunday Morning.cpr", "");
        folder.Write("work/Top.Cpr", "");
        folder.Write("work/read me", "");
        folder.MakeFolder("work/.hidden");
    }

    static std::string WithProgram(std::string text) {
        return text.replace(text.find('@'), 1, MARLO_CLI);
    }

    /// Types a line behind the program's name, in the folder "work".
    /// @return the words with which the program was started.
    Words Run(const std::string& line) {
        if (!terminal_)
            Start();
        terminal_->Type("marlo-cli " + line + "\n");
        const std::string end = ">" + std::to_string(++runs_) + ">";
        const std::string& seen = terminal_->ReadUntil(end);
        const std::size_t behind = seen.rfind(end);
        if (behind == std::string::npos) {
            ADD_FAILURE() << seen;
            return {};
        }
        const std::size_t start = seen.rfind('<', behind) + 1;
        std::istringstream list(seen.substr(start, behind - start));
        Words words;
        for (std::string word; std::getline(list, word, '|');)
            words.push_back(word);
        return words;
    }

    /// What is offered behind some words, one of which may be the start of it.
    std::set<std::string> Offers(const std::string& line) {
        if (GetParam().name == "fish")
            return FishOffers(line);
        std::set<std::string> offered;
        for (const std::string& word : Run(line + "\x1b*"))
            offered.insert(word);
        std::istringstream typed(line);
        for (std::string word; typed >> word;)
            offered.erase(word);
        return offered;
    }

    /// A folder's name as it is completed.
    static std::string Folder(const std::string& name) { return name + GetParam().folderEnd; }

  private:
    void Start() {
        terminal_.emplace(Program::StartInTerminal(GetParam().start));
        for (const std::string& line :
             {GetParam().setUp, WithProgram(GetParam().load), GetParam().printWords,
              "cd '" + folder.Path("work") + "'", std::string("marlo-cli")})
            terminal_->Type(line + "\n");
        terminal_->ReadUntil(">" + std::to_string(++runs_) + ">");
    }

    /// Fish tells by itself what it offers.
    std::set<std::string> FishOffers(const std::string& line) const {
        const auto told = test::Run(
            {GetParam().start[0], "--no-config", "-c",
             WithProgram(GetParam().load) + "; complete -C $argv[1]", "marlo-cli " + line},
            folder.Path("work"));
        EXPECT_EQ(told.error, "");
        std::set<std::string> offered;
        std::istringstream lines(told.out);
        for (std::string offer; std::getline(lines, offer);) {
            offer.resize(std::min(offer.find('\t'), offer.size()));
            // The others do not put this behind what may go on.
            if (offer.ends_with('/'))
                offer.pop_back();
            offered.insert(offer);
        }
        return offered;
    }

    std::optional<Program> terminal_;
    int runs_ = 0;
};

INSTANTIATE_TEST_SUITE_P(Shells, CompletionTest, testing::ValuesIn(kShells));

using Offered = std::set<std::string>;

TEST_P(CompletionTest, TheScriptHasNoSyntaxError) {
    const std::string script =
        folder.Write("script", test::Run({MARLO_CLI, "completion", GetParam().name}).out);
    const auto checked = test::Run({GetParam().start[0], "-n", script});
    EXPECT_EQ(checked.exitCode, 0);
    EXPECT_EQ(checked.error, "");
    folder.Write("script", folder.Read("script") + "\nif (\n");
    EXPECT_NE(test::Run({GetParam().start[0], "-n", script}).exitCode, 0);
}

TEST_P(CompletionTest, CommandsAreOffered) {
    EXPECT_EQ(Offers(""), (Offered{"plugins", "search", "installed", "report", "find", "folders",
                                   "options", "log", "completion"}));
    EXPECT_EQ(Offers("folders "), (Offered{"list", "add", "remove"}));
    EXPECT_EQ(Run("rep\tused"), (Words{"report", "used"}));
    EXPECT_EQ(Run("folders r\tx"), (Words{"folders", "remove", "x"}));
    EXPECT_EQ(Run("--app-folder x rep\t"), (Words{"--app-folder", "x", "report"}));
    EXPECT_EQ(Run("find report rep\t"), (Words{"find", "report", "rep"}))
        << "a word that is no command";
}

TEST_P(CompletionTest, TheOptionsAreThoseOfTheCommandAndThoseOfAll) {
    const Offered all = {"--help", "-h", "--version", "--app-folder"};
    EXPECT_EQ(Offers("-"), all);
    EXPECT_EQ(Offers("folders add -"), all);
    Offered expected = all;
    expected.insert({"--format", "--null", "-0", "--color"});
    EXPECT_EQ(Offers("report -"), expected);
    expected = all;
    expected.insert({"--merged", "--format"});
    EXPECT_EQ(Offers("plugins -"), expected);
    EXPECT_EQ(Run("search --no\t x"), (Words{"search", "--no-subfolders", "x"}));
    EXPECT_EQ(Run("search -- --no\t"), (Words{"search", "--", "--no"}));
}

TEST_P(CompletionTest, TheValuesOfAnOptionAreOffered) {
    EXPECT_EQ(Offers("plugins --format "), (Offered{"table", "csv", "json", "jsonl"}));
    EXPECT_EQ(Offers("find --match "), (Offered{"exact", "starts", "ends", "contains"}));
    EXPECT_EQ(Offers("options --ignore-off "), (Offered{"on", "off"}));
    EXPECT_EQ(Run("report --color al\t"), (Words{"report", "--color", "always"}));
    EXPECT_EQ(Run("report --color=al\t"), (Words{"report", "--color=always"}));
    EXPECT_EQ(Run("find --in=plu\t x"), (Words{"find", "--in=plugins", "x"}));
}

TEST_P(CompletionTest, ArgumentsThatAreOneOfSomeNamesAreOffered) {
    EXPECT_EQ(Offers("report "), (Offered{"used", "unused", "installed", "uninstalled"}));
    EXPECT_EQ(Offers("completion "), (Offered{"bash", "zsh", "fish"}));
    EXPECT_EQ(Run("report --format csv us\t"), (Words{"report", "--format", "csv", "used"}));
    EXPECT_EQ(Run("report used us\t"), (Words{"report", "used", "us"})) << "there is only one";
}

TEST_P(CompletionTest, FoldersAreOfferedWhereAFolderIsWanted) {
    const Offered folders = {"songs", "My Songs"};
    EXPECT_EQ(Offers("search "), folders);
    EXPECT_EQ(Offers("folders add "), folders);
    EXPECT_EQ(Offers("--app-folder "), folders);
    EXPECT_EQ(Run("--app-folder so\t log"), (Words{"--app-folder", Folder("songs"), "log"}));
    EXPECT_EQ(Run("--app-folder=My\t log"), (Words{"--app-folder=" + Folder("My Songs"), "log"}));
    EXPECT_EQ(Run("search .h\t"), (Words{"search", Folder(".hidden")}));
    EXPECT_EQ(Run("search songs so\t"), (Words{"search", "songs", "so"})) << "there is only one";
}

TEST_P(CompletionTest, ProjectsAreOfferedAndTheFoldersOnTheWayToThem) {
    EXPECT_EQ(Offers("plugins "), (Offered{"songs", "My Songs", "Top.Cpr"}));
    EXPECT_EQ(Offers("plugins songs/"),
              (Offered{"songs/LOUD.CPR", "songs/it's.cpr", "songs/cost $5.cpr",
                       "songs/R\u00E9verb \"q\".cpr", "songs/a=b.cpr"}));
    EXPECT_EQ(Run("plugins songs/n\t"), (Words{"plugins", "songs/n"})) << "not a text";
    EXPECT_EQ(Run("plugins Top.Cpr so\tL\t"), (Words{"plugins", "Top.Cpr", "songs/LOUD.CPR"}));
    EXPECT_EQ(Run("plugins ~/wo\tT\t"), (Words{"plugins", folder.Path("work/Top.Cpr")}));
}

TEST_P(CompletionTest, AnyFileIsOfferedWhereAProgramIsWanted) {
    EXPECT_EQ(Run("options --csv-program re\t"), (Words{"options", "--csv-program", "read me"}));
    EXPECT_EQ(Run("options --csv-program=songs/n\t"),
              (Words{"options", "--csv-program=songs/notes.txt"}));
}

TEST_P(CompletionTest, NamesComeToTheProgramAsTheyAre) {
    EXPECT_EQ(Run("plugins My\tS\t"), (Words{"plugins", "My Songs/Sunday Morning.cpr"}));
    EXPECT_EQ(Run("plugins \"My\tS\t"), (Words{"plugins", "My Songs/Sunday Morning.cpr"}));
    EXPECT_EQ(Run("plugins 'songs/co\t"), (Words{"plugins", "songs/cost $5.cpr"}));
    EXPECT_EQ(Run("plugins songs/co\t"), (Words{"plugins", "songs/cost $5.cpr"}));
    EXPECT_EQ(Run("plugins songs/it\t"), (Words{"plugins", "songs/it's.cpr"}));
    EXPECT_EQ(Run("plugins songs/R\u00E9\t"), (Words{"plugins", "songs/R\u00E9verb \"q\".cpr"}));
    EXPECT_EQ(Run("plugins songs/a\t"), (Words{"plugins", "songs/a=b.cpr"}));
}

TEST(ZshCompletionTest, AFileInTheShellsFolderOfFunctionsIsEnough) {
    const test::TempFolder folder;
    folder.Write("_marlo-cli", test::Run({MARLO_CLI, "completion", "zsh"}).out);
    test::SetVariable("TERM", "dumb");
    auto terminal = Program::StartInTerminal({"/usr/bin/zsh", "-f", "-i"});
    terminal.Type("fpath=('" + folder.Path() + "' $fpath); autoload -U compinit; compinit -u -D\n");
    terminal.Type("marlo-cli() { print \"<$@>\" }\nmarlo-cli rea'dy'\n");
    terminal.ReadUntil("<ready>");
    terminal.Type("marlo-cli rep\tus\t\n");
    EXPECT_NE(terminal.ReadUntil("<report used>").find("<report used>"), std::string::npos);
}

TEST(CompletionCommandTest, ItNeedsNoApplicationFolder) {
    const auto result = test::Run({MARLO_CLI, "--app-folder", "/nowhere", "completion", "bash"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.error, "");
    EXPECT_TRUE(result.out.starts_with("# Completes the command lines of marlo-cli in bash.\n"));
}

TEST(CompletionCommandTest, OutputThatCannotBeWrittenIsAFailure) {
    const auto result = test::Run({"/bin/sh", "-c", "'" MARLO_CLI "' completion fish >/dev/full"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.error, "marlo-cli: the output cannot be written\n");
}

}  // namespace
}  // namespace marlo
