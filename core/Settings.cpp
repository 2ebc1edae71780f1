#include "core/Settings.h"

#include <algorithm>
#include <array>
#include <limits>
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

/// Has the file reach `size` bytes from `offset` on, with what is there as it is and spaces behind.
/// What has no room for that, a full disk for one, fails here, and whatever part of it was written
/// changes no value.
void MakeRoom(platform::File& file, std::uint64_t offset, std::size_t size,
              std::error_code& error) {
    std::string bytes(size, ' ');
    const std::size_t there =
        file.ReadAt(offset, {reinterpret_cast<unsigned char*>(bytes.data()), size}, error);
    const std::size_t start = std::min(there, size - 1);
    if (!error)
        file.WriteAt(offset + start, std::string_view(bytes).substr(start), error);
}

/// Writes whole records with one call of the system. A kill may divide it where a page of memory
/// ends, and nowhere else.
void WriteRecords(const Application& application, std::int16_t first, std::string_view records) {
    const std::uint64_t offset = OffsetOf(first);
    std::error_code error;
    auto file = platform::File::OpenForUpdating(SettingsPath(application), error);
    ThrowOnPath(error);
    MakeRoom(file, offset, records.size(), error);
    ThrowOn(error);
    file.WriteAt(offset, records, error);
    ThrowOn(error);
}

std::string RecordOf(std::string_view value) {
    std::string record(value.substr(0, kRecordLength));
    record.resize(kRecordLength, ' ');
    return record;
}

}  // namespace

std::string getSetting(const Application& application, std::int16_t record) {
    std::string value;
    RunGuarded(application, "getSetting", [&] { value = ReadRecord(application, record); });
    return value;
}

bool WriteSetting(const Application& application, std::int16_t record, std::string_view value) {
    return RunGuarded(application, "WriteSetting",
                      [&] { WriteRecords(application, record, RecordOf(value)); });
}

bool WriteSettings(const Application& application, std::int16_t first,
                   const std::vector<std::string>& values) {
    return RunGuarded(application, "WriteSetting", [&] {
        constexpr std::int16_t last = std::numeric_limits<std::int16_t>::max();
        if (values.size() > static_cast<std::size_t>(last - first) + 1)
            throw RunTimeError(ErrorNumber::BadRecordNumber);
        std::string records;
        for (const std::string& value : values)
            records += RecordOf(value);
        if (!records.empty())
            WriteRecords(application, first, records);
    });
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
