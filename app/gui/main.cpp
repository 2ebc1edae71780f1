#include <exception>
#include <optional>
#include <sstream>
#include <string>
#include <system_error>
#include <utility>
#include <wx/log.h>

#include <CLI/CLI.hpp>

#include "app/ApplicationFolder.h"
#include "app/StartOptions.h"
#include "app/cli/TerminalText.h"
#include "app/gui/Form1Window.h"
#include "app/gui/GuiApp.h"
#include "app/gui/MessageBox.h"
#include "core/ErrorLog.h"
#include "platform/Announce.h"
#include "platform/FileSystem.h"
#include "platform/Machine.h"

namespace marlo::gui {

namespace {

/// What the program was started with.
struct Options {
    std::optional<std::string> applicationFolder;
    std::optional<std::string> winePrefix;  ///< nothing for the user's own
};

/// Where the help and donation pages are: on a web site, or in a folder that is looked for as the
/// program's pictures are.
std::string HelpSite(const std::string& applicationFolder) {
    std::string site = MARLO_HELP_SITE;
    if (site.find("://") != std::string::npos)
        return site;
    std::error_code error;
    std::string own = platform::JoinPath(applicationFolder, site);
    return platform::IsFolder(own, error) ? own : platform::JoinPath(ProgramFiles(), site);
}

class MarloApp final : public GuiApp {
  public:
    /// @param warning for the user; empty for none.
    MarloApp(const Application& application, std::string warning)
        : application_(application), warning_(std::move(warning)) {}

    bool OnInit() override {
        GuiApp::OnInit();
        auto* const window = new Form1Window(application_, HelpSite(application_.folder));
        window->Show();
        if (!warning_.empty())
            window->Warn(warning_);
        return true;
    }

    /// What a handler cannot do, because memory is short or for whatever reason, leaves the window
    /// as it is.
    bool OnExceptionInMainLoop() override {
        LogFailure(application_, "marlo");
        return true;
    }

  private:
    const Application& application_;
    const std::string warning_;
};

/// Shows a message in the place of the window.
class RefusingApp final : public GuiApp {
  public:
    explicit RefusingApp(std::string text) : text_(std::move(text)) {}

    bool OnInit() override {
        GuiApp::OnInit();
        ShowMessageBox(nullptr, {.text = text_, .icon = MessageIcon::Exclamation});
        return false;
    }

  private:
    const std::string text_;
};

int Complain(const std::string& text) {
    platform::Announce(platform::Stream::Error, "marlo: " + cli::Printable(text) + "\n");
    return 1;
}

/// Runs an application of the toolkit's to its end. @return the exit code.
int Run(GuiApp* app, char* programName) {
    wxApp::SetInstance(app);
    int count = 1;
    return wxEntry(count, &programName);
}

/// Shows the window until it is closed.
int Run(const Options& options, char* programName) {
    const ApplicationFolder folder = FindApplicationFolder(options.applicationFolder);
    if (!folder.failure.empty()) {
        Complain(folder.failure);
        // Who starts the program from a menu sees no stream.
        const wxLogNull quiet;  // about a display that is not there
        if (!options.applicationFolder)
            Run(new RefusingApp("Marlo cannot start: " + folder.failure + "."), programName);
        return 1;
    }
    const OpenedRegistry registry = OpenRegistry(options.winePrefix);
    if (!registry.failure.empty())
        return Complain(registry.failure);
    std::string warning;
    for (const std::string& sentence : folder.warnings)
        warning += (warning.empty() ? "" : "\n\n") + sentence;
    const Application application{
        folder.path, platform::SystemClock(), platform::SystemDesktop(), registry.Get(), {}};
    return Run(new MarloApp(application, std::move(warning)), programName);
}

/// Reads the command line, and runs what it asks for.
int RunCommandLine(int argc, char** argv) {
    Options options;
    CLI::App commandLine(
        "Which plug-ins do your Cubase SX projects use, and which are installed "
        "here?",
        "marlo");
    // A path may begin with a slash on every system.
    commandLine.allow_windows_style_options(false);
    commandLine.set_version_flag("--version", "marlo " MARLO_VERSION);
    const auto add = [&](const OptionText& option, std::optional<std::string>& value) {
        commandLine.add_option(option.name, value, option.help)->type_name(option.valueName);
    };
    add(kAppFolderOption, options.applicationFolder);
    if (platform::HasWinePrefixes())
        add(kWinePrefixOption, options.winePrefix);
    commandLine.footer("The terminal program is marlo-cli.");
    try {
        commandLine.parse(argc, argv);
    } catch (const CLI::ParseError& ending) {
        std::ostringstream answer;
        std::ostringstream complaint;
        const bool isAnswer = commandLine.exit(ending, answer, complaint) == 0;
        if (isAnswer)
            platform::Announce(platform::Stream::Out, answer.str());
        else
            platform::Announce(platform::Stream::Error, cli::PrintableLines(complaint.str()));
        constexpr int wrongUsage = 2;
        return isAnswer ? 0 : wrongUsage;
    }
    return Run(options, argv[0]);
}

}  // namespace

}  // namespace marlo::gui

int main(int argc, char** argv) {
    try {
        return marlo::gui::RunCommandLine(argc, argv);
    } catch (const std::exception& failure) {
        return marlo::gui::Complain(failure.what());
    }
}
