#include "core/ErrorLog.h"

#include <system_error>

#include "core/ResultFileNames.h"
#include "core/RunTimeError.h"
#include "platform/File.h"

namespace marlo {

namespace {

std::string LogLine(const Application& application, const ErrorEntry& entry) {
    const std::tm now = application.clock.Now();
    return "Date: " + application.clock.TimeText(now) + " " + application.clock.ShortDateText(now) +
           " Procedure: " + entry.procedure + " Error No.: " + std::to_string(entry.number) +
           " Description: " + entry.description + "\r\n";
}

void AppendToLog(const Application& application, const std::string& line) {
    std::error_code error;
    const std::string path = ApplicationPath(application, result_file::kErrorLog);
    auto log = platform::File::OpenForAppending(path, error);
    if (!error)
        log.Write(line, error);
}

}  // namespace

void WriteErrorLog(const Application& application, std::string_view procedure, std::int32_t number,
                   std::string_view description) noexcept {
    try {
        const ErrorEntry entry{std::string(procedure), number, std::string(description)};
        if (application.onErrorLogged)
            application.onErrorLogged(entry);
        AppendToLog(application, LogLine(application, entry));
    } catch (...) {  // NOLINT(bugprone-empty-catch): there is nowhere left to report to.
    }
}

void LogFailure(const Application& application, std::string_view procedure) noexcept {
    const RunTimeError failure = CurrentFailure();
    WriteErrorLog(application, procedure, static_cast<std::int32_t>(failure.Number()),
                  failure.Description());
}

}  // namespace marlo
