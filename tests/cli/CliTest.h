#pragma once

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/Program.h"
#include "tests/support/TempFolder.h"
#include "tools/ProjectWriter.h"

namespace marlo::test {

/// A test of the terminal program, with an application folder and a folder of projects.
class CliTest : public testing::Test {
  protected:
    CliTest() {
        folder.MakeFolder("app/resultfiles");
        folder.MakeFolder("songs");
    }

    /// The words that start the program with `arguments` on the test's application folder.
    std::vector<std::string> CommandLine(std::vector<std::string> arguments) const {
        arguments.insert(arguments.begin(), {MARLO_CLI, "--app-folder", folder.Path("app")});
        return arguments;
    }

    ProgramResult Marlo(const std::vector<std::string>& arguments) const {
        return test::Run(CommandLine(arguments));
    }

    /// Writes a project into "songs". @return its path.
    std::string AddProject(const std::string& name,
                           const std::vector<tools::PluginSlot>& slots) const {
        std::string bytes(100, '\0');
        for (const auto& slot : slots)
            bytes += tools::PluginBytes(slot);
        return folder.Write("songs/" + name, bytes);
    }

    /// Writes a project that cannot be scanned. @return its path.
    std::string AddBrokenProject(const std::string& name) const {
        return folder.Write("songs/" + name, "CcnK....FBCh" + std::string(100, '\0'));
    }

    std::string Songs() const { return folder.Path("songs"); }
    std::string Result(const std::string& name) const {
        return folder.Read("app/resultfiles/" + name);
    }

    TempFolder folder;
};

}  // namespace marlo::test
