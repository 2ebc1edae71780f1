#include "ui/OpenResultsFile.h"

#include "core/ErrorLog.h"
#include "core/Settings.h"
#include "core/Text.h"

namespace marlo {

namespace {

void OpenInCsvProgram(const Application& application, MainWindow& window,
                      const std::string& fileName) {
    const std::string program = getSetting(application, setting::kCsvProgram);
    if (program.empty()) {
        window.ShowMessage(
            {.text = "You need to select a program to open the file. See the Settings menu."});
        return;
    }
    const std::string path =
        ApplicationPath(application, std::string("\\resultfiles\\").append(TrimSpaces(fileName)));
    const int answer = application.desktop.ShellExecute(
        {.file = program, .parameters = GetShortPath(application, path), .isProgram = true});
    if (answer <= platform::kLastShellFailure)
        window.ShowMessage(
            {.text = "Cannot open the file at the moment", .icon = MessageIcon::Information});
}

}  // namespace

void OpenResultsFile(const Application& application, MainWindow& window,
                     const std::string& fileName) {
    const bool completed = RunGuarded(application, "OpenResultsFile",
                                      [&] { OpenInCsvProgram(application, window, fileName); });
    if (!completed)
        window.ShowMessage({.text = "The file could not be opened. Check the settings menu to "
                                    "ensure you have selected an appropiate program to open the "
                                    "file."});
}

std::string GetShortPath(const Application& application, const std::string& path) {
    return application.desktop.ShortPath(path);
}

}  // namespace marlo
