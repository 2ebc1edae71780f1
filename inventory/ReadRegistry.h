#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

#include "core/Application.h"
#include "platform/Registry.h"

namespace marlo {

/// A registry value: nothing, a text, bytes, or a number.
using RegistryValue =
    std::variant<std::monostate, std::string, std::vector<unsigned char>, std::int32_t>;

/// Reads one value of one key.
///
/// | type of the value | result |
/// |---|---|
/// | REG_SZ, REG_EXPAND_SZ (not expanded) | the text without its final NUL |
/// | REG_MULTI_SZ | the texts with NULs between them, without the final two |
/// | REG_BINARY | the bytes |
/// | REG_DWORD | the number |
/// | any other | the empty text |
///
/// A value that is missing while its key is there is converted all the same, as the type that
/// `keyType` comes with and 1,024 zero bytes: with 0 the result is the empty text, with REG_DWORD
/// it is 0.
///
/// @param hkey1 a hive or an open key.
/// @param keyName the path of a key below it, with "\" between the steps.
/// @param valueName "" for the key's default value.
/// @param keyType receives the value's type; stays as it is when the value is missing.
/// @param defaultValue the result when the key cannot be opened.
/// @return also `defaultValue` after a failure, such as a text without even its final NUL, which is
///         logged under "GetRegistryValue, hkey1: <signed number> KeyName: <path>".
RegistryValue GetRegistryValue(const Application& application, platform::RegistryKey hkey1,
                               const std::string& keyName, const std::string& valueName,
                               std::int32_t& keyType, RegistryValue defaultValue = {});

/// A value as a text: a number in decimal, nothing as "".
/// @throws RunTimeError for bytes.
std::string TextOf(const RegistryValue& value);

}  // namespace marlo
