#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/Application.h"

namespace marlo {

/// The records of settings.ini that have a meaning, by number.
namespace setting {
inline constexpr std::int16_t kLastFolder = 1;         ///< the last folder that was searched
inline constexpr std::int16_t kIncludeSubfolders = 3;  ///< "1" or "0"
inline constexpr std::int16_t kLastSearch = 11;        ///< "mm-dd-yyyy hh:mm:ss"
}  // namespace setting

/// Reads a value from settings.ini, which lies in the application folder and is made when it is
/// missing.
///
/// The file is a sequence of 256-byte records, one value each, padded with spaces.
///
/// @param record the record's number, 1-based.
/// @return the value without spaces at its ends; empty for a record that was never written, and
///         after a failure, which is logged under "getSetting".
std::string getSetting(const Application& application, std::int16_t record);

/// Writes a value to its record in settings.ini, in place.
///
/// @param record the record's number, 1-based.
/// @param value cut to 256 bytes when it is longer.
/// @return false after a failure, which is logged under "WriteSetting".
bool WriteSetting(const Application& application, std::int16_t record, std::string_view value);

}  // namespace marlo
