#pragma once

#include <cstddef>
#include <cstdint>
#include <ctime>
#include <string>
#include <string_view>
#include <vector>

#include "core/Application.h"

namespace marlo {

/// The records of settings.ini that have a meaning, by number.
namespace setting {
inline constexpr std::int16_t kLastFolder = 1;         ///< the last folder that was searched
inline constexpr std::int16_t kIncludeSubfolders = 3;  ///< "1" or "0"
inline constexpr std::int16_t kCsvProgram = 4;         ///< path of the program for CSV files
inline constexpr std::int16_t kSearchType = 9;      ///< 0 exact match, 1 starts, 2 ends, 3 contains
inline constexpr std::int16_t kIgnoreCase = 10;     ///< 1 or 0
inline constexpr std::int16_t kLastSearch = 11;     ///< see `SettingDate`
inline constexpr std::int16_t kLastInventory = 15;  ///< see `SettingDate`
inline constexpr std::int16_t kIgnoreDirectX = 20;  ///< "1" or "0"
inline constexpr std::int16_t kIgnoreOff = 21;      ///< "1" or "0"
inline constexpr std::int16_t kFirstVstFolder = 50;  ///< a folder a record, to the first empty one
}  // namespace setting

/// A longer value is cut to this many bytes.
inline constexpr std::size_t kMaxSettingLength = 256;

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
/// @param value cut to `kMaxSettingLength` bytes when it is longer.
/// @return false after a failure, which is logged under "WriteSetting". The record is then as it
///         was, also on a full disk.
bool WriteSetting(const Application& application, std::int16_t record, std::string_view value);

/// Writes values to the records from `first` on, as `WriteSetting` does, and all in one step: a
/// program that is killed leaves the old values or the new ones.
/// @return false after a failure, also when there are more values than records; it is logged under
///         "WriteSetting".
bool WriteSettings(const Application& application, std::int16_t first,
                   const std::vector<std::string>& values);

/// Whether a setting gives `value` back as it is: neither cut nor trimmed, nor taken for a record
/// that was never written, as one that begins with a NUL is.
bool FitsSetting(std::string_view value);

/// A date and time in the fixed form of the settings, "mm-dd-yyyy hh:mm:ss", 24 hours.
std::string SettingDate(const std::tm& moment);

}  // namespace marlo
