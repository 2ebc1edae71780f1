#include <exception>
#include <memory>
#include <sstream>
#include <string>
#include <system_error>

#include <CLI/CLI.hpp>

#include "app/cli/TerminalText.h"
#include "app/gui/Form1Window.h"
#include "app/gui/GuiApp.h"
#include "core/ErrorLog.h"
#include "platform/Announce.h"
#include "platform/FileSystem.h"
#include "platform/Machine.h"

namespace marlo::gui {

namespace {

/// What the program was started with.
struct Options {
    std::string applicationFolder = platform::ProgramFolder();
    std::string winePrefix;  ///< empty for the user's own
};

/// Where the help and donation pages are: on a web site, or in a folder beside the program.
std::string HelpSite() {
    std::string site = MARLO_HELP_SITE;
    const bool isAddress = site.find("://") != std::string::npos;
    return isAddress ? site : platform::JoinPath(platform::ProgramFolder(), site);
}

class MarloApp final : public GuiApp {
  public:
    explicit MarloApp(const Application& application) : application_(application) {}

    bool OnInit() override {
        GuiApp::OnInit();
        (new Form1Window(application_, HelpSite()))->Show();
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
};

int Complain(const std::string& text) {
    platform::Announce(platform::Stream::Error, "marlo: " + cli::Printable(text) + "\n");
    return 1;
}

/// Shows the window until it is closed.
int Run(const Options& options, char* programName) {
    std::error_code error;
    const std::string folder = platform::FullPath(options.applicationFolder, error);
    if (error || !platform::IsFolder(folder, error))
        return Complain("the application folder " + options.applicationFolder + " does not exist");
    std::unique_ptr<platform::Registry> prefix;
    if (!options.winePrefix.empty()) {
        prefix = platform::OpenWinePrefix(options.winePrefix, error);
        if (!prefix)
            return Complain(options.winePrefix + ": no Wine prefix that can be read (" +
                            error.message() + ")");
    }
    const Application application{folder,
                                  platform::SystemClock(),
                                  platform::SystemDesktop(),
                                  prefix ? *prefix : platform::SystemRegistry(),
                                  {}};
    wxApp::SetInstance(new MarloApp(application));
    int count = 1;
    return wxEntry(count, &programName);
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
    commandLine
        .add_option("--app-folder", options.applicationFolder,
                    "The application folder, with settings.ini and resultfiles in it (default: the "
                    "program's own folder)")
        ->type_name("DIR");
    if (platform::HasWinePrefixes())
        commandLine
            .add_option("--wine-prefix", options.winePrefix,
                        "The Wine prefix whose DirectX plug-ins are listed (default: WINEPREFIX, "
                        "else ~/.wine)")
            ->type_name("DIR");
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
