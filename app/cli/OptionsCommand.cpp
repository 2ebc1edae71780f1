#include <iostream>
#include <string>
#include <system_error>

#include "app/cli/CommandSupport.h"
#include "app/cli/Commands.h"
#include "app/cli/TerminalText.h"
#include "app/cli/TerminalWindow.h"
#include "core/Settings.h"
#include "inventory/FileAssociation.h"
#include "platform/FileSystem.h"

namespace marlo::cli {

namespace {

constexpr const char* kCommand = "options";

const char* OnOrOff(const Application& application, std::int16_t record) {
    return getSetting(application, record) == "1" ? "on" : "off";
}

void WriteFlag(const Application& application, std::int16_t record,
               const std::optional<bool>& value) {
    if (value)
        WriteSetting(application, record, *value ? "1" : "0");
}

void PrintOptions(const Application& application) {
    // All are read first, as one that cannot be read is said.
    const std::string program = getSetting(application, setting::kCsvProgram);
    const char* const ignoreDirectX = OnOrOff(application, setting::kIgnoreDirectX);
    const char* const ignoreOff = OnOrOff(application, setting::kIgnoreOff);
    std::cout << "csv-program:    " << (program.empty() ? "(none)" : Printable(program)) << '\n'
              << "ignore-directx: " << ignoreDirectX << '\n'
              << "ignore-off:     " << ignoreOff << '\n';
}

}  // namespace

int RunOptions(const Environment& environment, const OptionChanges& changes) {
    TerminalWindow window(ProgressStyle::None);
    const Application application = ApplicationOf(environment, window);
    if (changes.csvProgram) {
        std::error_code error;
        const std::string path = platform::FullPath(*changes.csvProgram, error);
        if (error || !platform::IsFile(path, error))
            return Complain(kCommand, kFailed, *changes.csvProgram + ": no such program");
        if (!FitsSetting(path))
            return ComplainOfPath(kCommand, path);
        WriteSetting(application, setting::kCsvProgram, path);
    }
    WriteFlag(application, setting::kIgnoreDirectX, changes.ignoreDirectX);
    WriteFlag(application, setting::kIgnoreOff, changes.ignoreOff);
    FillInCsvProgram(application);
    PrintOptions(application);
    return FinishOutput(window.SawFailure() ? kFailed : kDone);
}

}  // namespace marlo::cli
