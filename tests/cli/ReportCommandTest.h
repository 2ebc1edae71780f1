#pragma once

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/cli/CliTest.h"
#include "tests/support/Program.h"
#include "tests/support/System.h"

namespace marlo::test {

/// A test with result files.
class ReportCommandTest : public CliTest {
  protected:
    ReportCommandTest() {
        SetVariable("TZ", "UTC0");
        WriteResult("installedplugins.csv",
                    "\"DirectX\",\"DX Echo\",\"<empty>\"\r\n"
                    "\"VST\",\"R\xE9verb\",\"/vst/R\xC3\xA9verb.dll\"\r\n"
                    "\"VST\",\"Unused\",\"/vst/Unused.dll\"\r\n");
        WriteResult("tln.csv",
                    "\"Tape Delay\",\"VST\",\"Off\"\r\n\"R\xE9verb\",\"VST\",\"On\"\r\n"
                    "\"DX Echo\",\"DirectX\",\"On\"\r\n");
        project = folder.Write("songs/a.cpr", "");
        folder.SetLastChange("songs/a.cpr", 1162050312);
        WriteResult("fln.csv", "\"" + project + "\",\"Tape Delay\",\"VST    \",\"Off\"\r\n\"" +
                                   project + "\",\"R\xE9verb\",\"VST    \",\"On\"\r\n");
    }

    void WriteResult(const std::string& name, const std::string& text) const {
        folder.Write("app/resultfiles/" + name, text);
    }

    /// Starts the program in a terminal of a kind, without a wish as to colours.
    std::string InTerminal(const std::vector<std::string>& arguments, const char* type) const {
        SetVariable("TERM", type);
        ClearVariable("NO_COLOR");
        auto program = Program::StartInTerminal(CommandLine(arguments));
        std::string shown = program.ReadAll();
        EXPECT_EQ(program.Wait(), 0);
        return shown;
    }

    std::string project;
};

}  // namespace marlo::test
