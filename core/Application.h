#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "platform/Clock.h"
#include "platform/Desktop.h"
#include "platform/Registry.h"

namespace marlo {

/// One entry of the error log.
struct ErrorEntry {
    std::string procedure;
    std::int32_t number = 0;
    std::string description;
};

/// What every routine knows of the running program: where its files lie and what machine it is on.
/// Outlives whatever uses it.
struct Application {
    std::string folder;  ///< the application folder, without a separator at its end
    const platform::Clock& clock;
    const platform::Desktop& desktop;
    platform::Registry& registry;
    /// Told of each entry that goes to the error log, if set.
    std::function<void(const ErrorEntry&)> onErrorLogged;
};

/// The title of message boxes that have none of their own.
inline constexpr std::string_view kApplicationTitle = "Marlo";

/// The full path of the result folder under an application folder, found as `ApplicationPath` finds
/// files.
std::string ResultFolder(const std::string& applicationFolder);

/// The full path of a file under the application folder.
///
/// Files and folders are found whatever the case of their names, also on a case-sensitive file
/// system. An exact match wins, then the first name in byte order. A missing file or folder gets
/// its usual name.
///
/// @param relativePath the usual names joined by "\", with a "\" in front, for example
///        "\resultfiles\results.csv" (see ResultFileNames.h). The result folder's may be spelt in
///        any case here, too.
std::string ApplicationPath(const Application& application, std::string_view relativePath);
std::string ApplicationPath(const std::string& applicationFolder, std::string_view relativePath);

}  // namespace marlo
