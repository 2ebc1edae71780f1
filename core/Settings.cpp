#include "core/Settings.h"

#include <algorithm>
#include <array>
#include <system_error>

#include "core/ErrorLog.h"
#include "core/RunTimeError.h"
#include "core/Text.h"
#include "platform/File.h"

namespace marlo {

namespace {

constexpr std::size_t kRecordLength = kMaxSettingLength;

std::string SettingsPath(const Application& application) {
    return ApplicationPath(application, "\\settings.ini");
}

std::uint64_t OffsetOf(std::int16_t record) {
    if (record < 1)
        throw RunTimeError(ErrorNumber::BadRecordNumber);
    return static_cast<std::uint64_t>(record - 1) * kRecordLength;
}

/// Opens the settings so that they are made when missing. Where nobody may write, reading what is
/// there is still of use.
platform::File OpenForGetting(const Application& application) {
    const std::string path = SettingsPath(application);
    std::error_code error;
    auto file = platform::File::OpenForUpdating(path, error);
    if (error) {
        std::error_code readOnlyError;
        file = platform::File::OpenForReading(path, readOnlyError);
        if (readOnlyError)
            ThrowOnPath(error);
    }
    return file;
}

std::string ReadRecord(const Application& application, std::int16_t record) {
    const std::uint64_t offset = OffsetOf(record);
    const auto file = OpenForGetting(application);
    std::string buffer(kRecordLength, ' ');
    std::error_code error;
    file.ReadAt(offset, {reinterpret_cast<unsigned char*>(buffer.data()), buffer.size()}, error);
    ThrowOn(error);
    const std::string_view value = TrimSpaces(buffer);
    return value.starts_with('\0') ? std::string() : std::string(value);
}

/// Has the file reach to the end of a record that stays as it is, with spaces behind a record that
/// is cut or not there. What has no room for the record, a full disk for one, fails here, and
/// whatever part of this was written changes no value.
void MakeRoom(platform::File& file, std::uint64_t offset, std::error_code& error) {
    std::string record(kRecordLength, ' ');
    const std::size_t there = file.ReadAt(
        offset, {reinterpret_cast<unsigned char*>(record.data()), record.size()}, error);
    const std::size_t start = std::min(there, kRecordLength - 1);
    if (!error)
        file.WriteAt(offset + start, std::string_view(record).substr(start), error);
}

void WriteRecord(const Application& application, std::int16_t record, std::string_view value) {
    const std::uint64_t offset = OffsetOf(record);
    std::error_code error;
    auto file = platform::File::OpenForUpdating(SettingsPath(application), error);
    ThrowOnPath(error);
    MakeRoom(file, offset, error);
    ThrowOn(error);
    std::string buffer(value.substr(0, kRecordLength));
    buffer.resize(kRecordLength, ' ');
    file.WriteAt(offset, buffer, error);
    ThrowOn(error);
}

}  // namespace

std::string getSetting(const Application& application, std::int16_t record) {
    std::string value;
    RunGuarded(application, "getSetting", [&] { value = ReadRecord(application, record); });
    return value;
}

bool WriteSetting(const Application& application, std::int16_t record, std::string_view value) {
    return RunGuarded(application, "WriteSetting",
                      [&] { WriteRecord(application, record, value); });
}

bool FitsSetting(std::string_view value) {
    return value.size() <= kMaxSettingLength && TrimSpaces(value) == value &&
           !value.starts_with('\0');
}

std::string SettingDate(const std::tm& moment) {
    std::array<char, sizeof "mm-dd-yyyy hh:mm:ss"> text{};
    const std::size_t length =
        std::strftime(text.data(), text.size(), "%m-%d-%Y %H:%M:%S", &moment);
    return {text.data(), length};
}

}  // namespace marlo
