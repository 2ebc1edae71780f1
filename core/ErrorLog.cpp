#include "core/ErrorLog.h"

#include <system_error>

#include "core/ResultFileNames.h"
#include "core/RunTimeError.h"
#include "platform/File.h"

namespace marlo {

namespace {

std::string LogLine(const Application& application, std::string_view procedure, std::int32_t number,
                    std::string_view description) {
    const std::tm now = application.clock.Now();
    std::string line = "Date: " + application.clock.TimeText(now) + " " +
                       application.clock.ShortDateText(now) + " Procedure: ";
    line.append(procedure).append(" Error No.: ").append(std::to_string(number));
    line.append(" Description: ").append(description).append("\r\n");
    return line;
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
    IgnoreFailures([&] {
        if (application.onErrorLogged)
            application.onErrorLogged({std::string(procedure), number, std::string(description)});
    });
    IgnoreFailures(
        [&] { AppendToLog(application, LogLine(application, procedure, number, description)); });
}

void LogFailure(const Application& application, std::string_view procedure) noexcept {
    const Failure failure = CurrentFailure();
    WriteErrorLog(application, procedure, static_cast<std::int32_t>(failure.number),
                  failure.description);
}

}  // namespace marlo
