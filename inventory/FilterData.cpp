#include "inventory/FilterData.h"

#include <charconv>
#include <cstdint>
#include <variant>

#include "core/ErrorLog.h"
#include "core/RunTimeError.h"
#include "inventory/ReadRegistry.h"

namespace marlo {

namespace {

constexpr std::string_view kAudio = "73647561-0000-0010-8000-00AA00389B71";
constexpr std::string_view kPcm = "00000001-0000-0010-8000-00AA00389B71";
constexpr std::string_view kAnySubtype = "00000000-0000-0000-0000-000000000000";

constexpr std::size_t kGroupSize = 5;
constexpr std::size_t kFirstTableSize = 101;
constexpr std::size_t kTableGrowth = 100;

// The layout of a registration: a header with the count of pins, then for each pin its record and
// those of its media types. Offsets in bytes.
constexpr std::size_t kPinCount = 8;
constexpr std::size_t kFirstTypeCount = 28;
constexpr std::size_t kFirstMajorType = 48;  ///< where the first media type tells its major type
constexpr std::size_t kSubtypeAfterMajorType = 4;
constexpr std::size_t kMediaTypeSize = 16;
constexpr std::size_t kToTypeCountOfNextPin = 4;
constexpr std::size_t kTypeCountToMajorType = 20;
constexpr std::size_t kGuidSize = 16;

class FilterDataReader {
  public:
    FilterDataReader(const Application& application, const RegistryValue& name,
                     const std::vector<unsigned char>& data, PinTypeTable& table)
        : application_(application), name_(name), data_(data), table_(table) {}

    /// Fills the table. On a failure it is left as it is at that point.
    void Read() {
        table_.resize(kFirstTableSize);
        const int pinCount = ByteAt(kPinCount);
        int typeCount = ByteAt(kFirstTypeCount);
        std::size_t position = kFirstMajorType;
        for (int pin = 1; pin <= pinCount; ++pin) {
            for (int type = 1; type <= typeCount; ++type) {
                AddGroup(pin, type, position);
                position += kMediaTypeSize;
            }
            if (pin == pinCount)
                break;
            position += kToTypeCountOfNextPin;
            typeCount = ByteAt(position);
            position += kTypeCountToMajorType;
        }
        if (used_ == 0)
            throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
        table_.resize(used_);
    }

  private:
    unsigned char ByteAt(std::size_t offset) const {
        if (offset >= data_.size())
            throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
        return data_[offset];
    }

    std::size_t LowWordAt(std::size_t offset) const {
        return ByteAt(offset) + ByteAt(offset + 1) * std::size_t{256};
    }

    std::string HexDigits(std::size_t offset) const {
        constexpr std::string_view digits = "0123456789ABCDEF";
        std::string text;
        for (std::size_t i = 0; i < kGuidSize; ++i) {
            const unsigned char byte = ByteAt(offset + i);
            text += digits[byte / 16U];
            text += digits[byte % 16U];
        }
        return text;
    }

    void AddGroup(int pin, int type, std::size_t position) {
        const std::size_t majorAt = LowWordAt(position);
        const std::size_t subAt = LowWordAt(position + kSubtypeAfterMajorType);
        const std::string major = FormatGUID(application_, HexDigits(majorAt));
        const std::string sub = FormatGUID(application_, HexDigits(subAt));
        if (used_ + kGroupSize > table_.size())
            table_.resize(table_.size() + kTableGrowth);
        for (const auto& text :
             {TextOf(name_), std::to_string(pin), std::to_string(type), major, sub})
            table_[used_++] = text;
    }

    const Application& application_;
    const RegistryValue& name_;
    const std::vector<unsigned char>& data_;
    PinTypeTable& table_;
    std::size_t used_ = 0;
};

int PinNumber(const std::string& text) {
    int number = 0;
    const char* const end = text.data() + text.size();
    const auto parsed = std::from_chars(text.data(), end, number);
    if (parsed.ec != std::errc() || parsed.ptr != end)
        throw RunTimeError(ErrorNumber::TypeMismatch);
    return number;
}

}  // namespace

PinTypeTable GetPluginTypes(const Application& application, platform::RegistryKey hive,
                            const std::string& keyPath) {
    PinTypeTable table;
    RunGuarded(application, "GetPluginTypes", [&] {
        // One variable for both: a missing FilterData is converted as the name's type.
        std::int32_t keyType = 0;
        const auto friendlyName =
            GetRegistryValue(application, hive, keyPath, "FriendlyName", keyType);
        const auto filterData = GetRegistryValue(application, hive, keyPath, "FilterData", keyType);
        const auto* const data = std::get_if<std::vector<unsigned char>>(&filterData);
        if (data == nullptr)
            return;
        if (data->size() <= kFirstTypeCount)
            table.push_back(TextOf(friendlyName));
        else
            FilterDataReader(application, friendlyName, *data, table).Read();
    });
    return table;
}

bool IsCubaseCompatible(const Application& application, const PinTypeTable& table,
                        std::string& name) {
    bool inputOk = false;
    bool outputOk = false;
    RunGuarded(application, "IsCubaseCompatible", [&] {
        for (std::size_t i = 0; i + kGroupSize <= table.size() && !(inputOk && outputOk);
             i += kGroupSize) {
            name = table[i];
            const int pin = PinNumber(table[i + 1]);
            const std::string& sub = table[i + 4];
            const bool fits = table[i + 3] == kAudio && (sub == kPcm || sub == kAnySubtype);
            inputOk = inputOk || (pin == 1 && fits);
            outputOk = outputOk || (pin == 2 && fits);
        }
    });
    return inputOk && outputOk;
}

std::string FormatGUID(const Application& application, std::string_view digits) {
    std::string text;
    const auto procedure = [&] { return "FormatGUID: " + std::string(digits); };
    RunGuarded(application, procedure, [&] {
        if (digits.size() != 2 * kGuidSize)
            throw RunTimeError(ErrorNumber::InvalidProcedureCall);
        // The first three numbers are in the memory of a little-endian machine.
        for (const std::size_t pair : {6U, 4U, 2U, 0U})
            text += digits.substr(pair, 2);
        text += '-';
        for (const std::size_t pair : {10U, 8U})
            text += digits.substr(pair, 2);
        text += '-';
        for (const std::size_t pair : {14U, 12U})
            text += digits.substr(pair, 2);
        text += '-';
        text += digits.substr(16, 4);
        text += '-';
        text += digits.substr(20, 12);
    });
    return text;
}

}  // namespace marlo
