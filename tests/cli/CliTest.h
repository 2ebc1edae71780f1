#pragma once

#include <algorithm>
#include <cstdlib>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/Program.h"
#include "tests/support/Projects.h"
#include "tests/support/System.h"
#include "tests/support/TempFolder.h"

namespace marlo::test {

/// A test of the terminal program, with an application folder and a folder of projects.
class CliTest : public testing::Test {
  protected:
    CliTest() {
        folder.MakeFolder("app/resultfiles");
        folder.MakeFolder("songs");
        // A machine without Wine or associations, until a test makes some.
        SetVariable("WINEPREFIX", folder.Path("prefix"));
        for (const char* variable : {"XDG_DATA_HOME", "XDG_DATA_DIRS", "XDG_CONFIG_HOME"})
            SetVariable(variable, folder.Path("data"));
        SetVariable("XDG_CONFIG_DIRS", folder.Path("data"));
    }

    /// The words that start the program with `arguments` on the test's application folder.
    std::vector<std::string> CommandLine(std::vector<std::string> arguments) const {
        arguments.insert(arguments.begin(), {MARLO_CLI, "--app-folder", folder.Path("app")});
        return arguments;
    }

    ProgramResult Marlo(const std::vector<std::string>& arguments) const {
        return test::Run(CommandLine(arguments));
    }

    /// Runs the window's program.
    static ProgramResult MarloWindow(std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(), MARLO_WINDOW);
        return test::Run(arguments);
    }

    /// Writes a project into "songs". @return its path.
    std::string AddProject(const std::string& name,
                           const std::vector<tools::PluginSlot>& slots) const {
        return test::AddProject(folder, name, slots);
    }

    /// Writes a project that cannot be scanned. @return its path.
    std::string AddBrokenProject(const std::string& name) const {
        return folder.Write("songs/" + name, "CcnK....FBCh" + std::string(100, '\0'));
    }

    /// A record of the settings, 1-based; empty when it was never written.
    std::string Setting(std::size_t record) const {
        constexpr std::size_t length = 256;
        const std::string settings = folder.Read("app/settings.ini");
        if (settings.size() < record * length)
            return {};
        const std::string value = settings.substr((record - 1) * length, length);
        return value.front() == '\0' ? "" : value.substr(0, value.find_last_not_of(' ') + 1);
    }

    /// Writes a record of the settings, 1-based.
    void WriteSetting(std::size_t record, std::string value) const {
        constexpr std::size_t length = 256;
        std::string settings =
            folder.Exists("app/settings.ini") ? folder.Read("app/settings.ini") : "";
        value.resize(length, ' ');
        settings.resize(std::max(settings.size(), record * length));
        folder.Write("app/settings.ini", settings.replace((record - 1) * length, length, value));
    }

    std::string Songs() const { return folder.Path("songs"); }
    std::string Result(const std::string& name) const {
        return folder.Read("app/resultfiles/" + name);
    }

    TempFolder folder;
};

}  // namespace marlo::test
