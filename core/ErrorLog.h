#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

#include "core/Application.h"

namespace marlo {

/// Appends one line to "\resultfiles\errorlog.txt" and tells the application's listener.
///
/// The line has the time before the date, in the system's formats:
/// `Date: 03:10:22 15/11/2026 Procedure: getSetting Error No.: 70 Description: Permission denied`,
/// ended by CR LF. The file is made when it is missing, its folder is not. An entry that cannot be
/// written is lost silently. The listener hears of it all the same, and one that throws
/// does not prevent the entry.
///
/// @param procedure the failed routine's fixed text, with whatever context it adds.
/// @param number the failure's number; 0 is valid.
void WriteErrorLog(const Application& application, std::string_view procedure, std::int32_t number,
                   std::string_view description) noexcept;

/// Logs the exception that is being handled. To be called inside a catch block only.
void LogFailure(const Application& application, std::string_view procedure) noexcept;

/// A routine's boundary: runs `body`, and logs whatever it throws.
///
/// @param procedure the routine's text for the log, or a function that makes it, which is called
///        after the failure.
/// @return whether `body` came to its end.
template <class Procedure, class Body>
bool RunGuarded(const Application& application, Procedure&& procedure, Body&& body) {
    try {
        std::forward<Body>(body)();
        return true;
    } catch (...) {
        try {
            if constexpr (std::is_invocable_v<Procedure>)
                LogFailure(application, std::forward<Procedure>(procedure)());
            else
                LogFailure(application, procedure);
        } catch (...) {  // NOLINT(bugprone-empty-catch): no memory for the text loses the entry.
        }
        return false;
    }
}

/// Runs `body` and ignores whatever it throws.
template <class Body>
void IgnoreFailures(Body body) noexcept {
    try {
        body();
    } catch (...) {  // NOLINT(bugprone-empty-catch): that is what it is for.
    }
}

}  // namespace marlo
