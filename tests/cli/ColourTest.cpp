#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/cli/ReportCommandTest.h"

namespace marlo {
namespace {

using test::Program;

const std::string kDimmed = "\x1b[2mTape Delay    VST      !Not Installed!  Off\x1b[0m\n";
const std::string kMarked = "* Tape Delay    VST      !Not Installed!  Off\n* not installed\n";

class ColourTest : public test::ReportCommandTest {
  protected:
    /// Prints a report with a greyed row into a terminal of a kind.
    std::string InTerminal(const std::vector<std::string>& options, const char* type) const {
        test::SetVariable("TERM", type);
        std::vector<std::string> arguments = {"report", "used"};
        arguments.insert(arguments.end(), options.begin(), options.end());
        auto program = Program::StartInTerminal(CommandLine(arguments));
        std::string shown = program.ReadAll();
        EXPECT_EQ(program.Wait(), 0);
        // The terminal's line ends.
        for (std::size_t at = shown.find('\r'); at != std::string::npos; at = shown.find('\r'))
            shown.erase(at, 1);
        return shown;
    }
};

TEST_F(ColourTest, AlwaysGoesIntoAPipeTooWithoutMarks) {
    test::SetVariable("NO_COLOR", "1");
    const std::string out = Marlo({"report", "used", "--color", "always"}).out;
    EXPECT_EQ(out,
              "Used Plugins  Type     Path             Status\n"
              "DX Echo       DirectX                   On\n"
              "R\u00E9verb        VST      /vst/R\u00E9verb.dll  On\n" +
                  kDimmed);
    const std::string found = Marlo({"find", "Tape Delay", "--color=always"}).out;
    EXPECT_NE(found.find("\n\x1b[2m" + project), std::string::npos) << found;
    EXPECT_EQ(found.find('*'), std::string::npos) << found;
}

TEST_F(ColourTest, AutoAndNeverLeaveMarksInAPipe) {
    for (const std::string choice : {"auto", "never"}) {
        const std::string out = Marlo({"report", "used", "--color", choice}).out;
        EXPECT_TRUE(out.ends_with(kMarked)) << out;
        EXPECT_EQ(out.find('\x1b'), std::string::npos) << choice;
    }
}

TEST_F(ColourTest, NoOtherFormatHasColours) {
    for (const std::string format : {"csv", "json", "html", "paths"})
        EXPECT_EQ(
            Marlo({"report", "used", "--color", "always", "--format", format}).out.find('\x1b'),
            std::string::npos)
            << format;
}

TEST_F(ColourTest, AnotherChoiceIsWrongUsage) {
    EXPECT_EQ(Marlo({"report", "used", "--color", "sometimes"}).exitCode, 2);
    EXPECT_EQ(Marlo({"find", "a", "--color"}).exitCode, 2);
    EXPECT_EQ(Marlo({"log", "--color", "never"}).exitCode, 2);
}

TEST_F(ColourTest, AutoIsWhatTheTerminalCanDo) {
    if (!test::HasUnixShell())
        GTEST_SKIP() << test::kNoUnixShell;
    test::ClearVariable("NO_COLOR");
    EXPECT_TRUE(InTerminal({"--color", "auto"}, "xterm").ends_with(kDimmed));
    EXPECT_TRUE(InTerminal({"--color", "auto"}, "dumb").ends_with(kMarked));
    EXPECT_TRUE(InTerminal({"--color", "never"}, "xterm").ends_with(kMarked));
    EXPECT_TRUE(InTerminal({"--color", "always"}, "dumb").ends_with(kDimmed));
}

TEST_F(ColourTest, AnEmptyNoColorIsNoneAndTheOptionCountsMoreThanAnother) {
    if (!test::HasUnixShell())
        GTEST_SKIP() << test::kNoUnixShell;
    test::SetVariable("NO_COLOR", "");
    EXPECT_TRUE(InTerminal({}, "xterm").ends_with(kDimmed));
    test::SetVariable("NO_COLOR", "1");
    EXPECT_TRUE(InTerminal({}, "xterm").ends_with(kMarked));
    EXPECT_TRUE(InTerminal({"--color", "auto"}, "xterm").ends_with(kDimmed));
    EXPECT_TRUE(InTerminal({"--color", "auto"}, "dumb").ends_with(kMarked));
    EXPECT_TRUE(InTerminal({"--color", "always"}, "xterm").ends_with(kDimmed));
}

}  // namespace
}  // namespace marlo
