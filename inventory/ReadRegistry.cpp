#include "inventory/ReadRegistry.h"

#include <utility>

#include "core/ErrorLog.h"
#include "core/RunTimeError.h"

namespace marlo {

namespace {

using platform::Registry;
using platform::RegistryKey;
using Bytes = std::vector<unsigned char>;

constexpr std::uint32_t kFirstBufferSize = 1024;

/// Closes a key when it goes out of scope.
class OpenKey {
  public:
    OpenKey(Registry& registry, RegistryKey key) : registry_(registry), key_(key) {}
    OpenKey(const OpenKey&) = delete;
    OpenKey& operator=(const OpenKey&) = delete;
    OpenKey(OpenKey&&) = delete;
    OpenKey& operator=(OpenKey&&) = delete;
    ~OpenKey() { registry_.CloseKey(key_); }

  private:
    Registry& registry_;
    RegistryKey key_;
};

/// The text in the first `length` bytes without the last `terminators` of them.
std::string TextIn(const Bytes& buffer, std::uint32_t length, std::uint32_t terminators) {
    if (length < terminators)
        throw RunTimeError(ErrorNumber::InvalidProcedureCall);
    if (length > buffer.size())
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
    return {reinterpret_cast<const char*>(buffer.data()), length - terminators};
}

/// Cuts or grows `buffer` to `length` bytes.
void ResizeTo(Bytes& buffer, std::uint32_t length) {
    // An array has at least one element.
    if (length == 0)
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
    buffer.resize(length);
}

std::int32_t NumberIn(const Bytes& buffer) {
    std::uint32_t number = 0;
    for (std::size_t i = 4; i-- > 0;)
        number = number << 8U | buffer.at(i);
    return static_cast<std::int32_t>(number);
}

/// @param buffer taken over by the result where that is an array.
/// @param result left as it is by a failure.
void Convert(std::int32_t type, Bytes& buffer, std::uint32_t length, RegistryValue& result) {
    switch (type) {
        case platform::registry_type::kString:
        case platform::registry_type::kExpandString:
            result = TextIn(buffer, length, 1);
            break;
        case platform::registry_type::kBinary:
            ResizeTo(buffer, length);
            result = std::move(buffer);
            break;
        case platform::registry_type::kDword:
            result = NumberIn(buffer);
            break;
        case platform::registry_type::kMultiString:
            result = TextIn(buffer, length, 2);
            break;
        default:
            result = std::string();
    }
}

}  // namespace

RegistryValue GetRegistryValue(const Application& application, RegistryKey hkey1,
                               const std::string& keyName, const std::string& valueName,
                               std::int32_t& keyType, RegistryValue defaultValue) {
    RegistryValue result = std::move(defaultValue);
    const auto procedure = [&] {
        return "GetRegistryValue, hkey1: " + std::to_string(static_cast<std::int32_t>(hkey1)) +
               " KeyName: " + keyName;
    };
    RunGuarded(application, procedure, [&] {
        Registry& registry = application.registry;
        RegistryKey key = 0;
        if (registry.OpenKey(hkey1, keyName, key) != platform::registry_result::kSuccess)
            return;
        const OpenKey open(registry, key);
        Bytes buffer(kFirstBufferSize);
        std::uint32_t length = kFirstBufferSize;
        if (registry.QueryValue(key, valueName, keyType, buffer, length) ==
            platform::registry_result::kMoreData) {
            buffer.assign(length, 0);
            registry.QueryValue(key, valueName, keyType, buffer, length);
        }
        Convert(keyType, buffer, length, result);
    });
    return result;
}

std::string TextOf(const RegistryValue& value) {
    if (std::holds_alternative<std::monostate>(value))
        return {};
    if (const auto* const number = std::get_if<std::int32_t>(&value))
        return std::to_string(*number);
    if (const auto* const text = std::get_if<std::string>(&value))
        return *text;
    throw RunTimeError(ErrorNumber::TypeMismatch);
}

}  // namespace marlo
