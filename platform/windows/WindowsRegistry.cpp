#include "platform/windows/WindowsRegistry.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include "platform/AnsiCodePage.h"
#include "platform/windows/System.h"

namespace marlo::platform {

namespace {

using namespace registry_result;

HKEY HandleOf(RegistryKey key) {
    switch (key) {
        case kClassesRoot:
            return HKEY_CLASSES_ROOT;
        case kCurrentUser:
            return HKEY_CURRENT_USER;
        case kLocalMachine:
            return HKEY_LOCAL_MACHINE;
        default:
            return reinterpret_cast<HKEY>(key);
    }
}

/// A text from Windows as the program's names are.
std::string NameFromSystem(std::string_view text) {
    return GetACP() == CP_UTF8 ? NameFromUtf8(text) : std::string(text);
}

/// A name as Windows takes it from this program.
std::string SystemFromName(const std::string& name) {
    return GetACP() == CP_UTF8 ? Utf8FromName(name) : name;
}

bool IsBare(HKEY key) {
    DWORD subkeys = 0;
    DWORD values = 0;
    return RegQueryInfoKeyA(key, nullptr, nullptr, nullptr, &subkeys, nullptr, nullptr, &values,
                            nullptr, nullptr, nullptr, nullptr) == ERROR_SUCCESS &&
           subkeys == 0 && values == 0;
}

/// The name of a key below `key`, in the program's code page.
LSTATUS NameAt(HKEY key, DWORD index, std::string& name) {
    constexpr std::size_t longestName = 255;
    std::string buffer(longestName * 4 + 1, '\0');
    auto length = static_cast<DWORD>(buffer.size());
    const LSTATUS result =
        RegEnumKeyExA(key, index, buffer.data(), &length, nullptr, nullptr, nullptr, nullptr);
    if (result == ERROR_SUCCESS)
        name = NameFromSystem(std::string_view(buffer).substr(0, length));
    return result;
}

/// The bytes of a value, texts in the program's code page.
LSTATUS ReadValue(HKEY key, const std::string& name, DWORD& type, std::string& data) {
    const std::string systemName = SystemFromName(name);
    DWORD length = 1024;
    LSTATUS result = ERROR_MORE_DATA;
    // The value may grow between two attempts.
    while (result == ERROR_MORE_DATA) {
        data.assign(length, '\0');
        result = RegQueryValueExA(key, systemName.c_str(), nullptr, &type,
                                  reinterpret_cast<BYTE*>(data.data()), &length);
    }
    data.resize(result == ERROR_SUCCESS ? length : 0);
    return result;
}

}  // namespace

std::int32_t WindowsRegistry::OpenKey(RegistryKey parent, const std::string& path,
                                      RegistryKey& opened) {
    const HKEY parentKey = HandleOf(parent);
    const std::string systemPath = SystemFromName(path);
    HKEY key = nullptr;
    LSTATUS result =
        RegOpenKeyExA(parentKey, systemPath.c_str(), 0, KEY_READ | KEY_WOW64_32KEY, &key);
    if (result != ERROR_SUCCESS || IsBare(key)) {
        HKEY wideKey = nullptr;
        const LSTATUS wideResult =
            RegOpenKeyExA(parentKey, systemPath.c_str(), 0, KEY_READ | KEY_WOW64_64KEY, &wideKey);
        if (wideResult == ERROR_SUCCESS) {
            if (result == ERROR_SUCCESS)
                RegCloseKey(key);
            key = wideKey;
            result = ERROR_SUCCESS;
        }
    }
    if (result == ERROR_SUCCESS)
        opened = reinterpret_cast<RegistryKey>(key);
    return result;
}

std::int32_t WindowsRegistry::QueryValue(RegistryKey key, const std::string& name,
                                         std::int32_t& type, std::span<unsigned char> buffer,
                                         std::uint32_t& length) {
    DWORD valueType = 0;
    std::string data;
    const LSTATUS result = ReadValue(HandleOf(key), name, valueType, data);
    if (result != ERROR_SUCCESS)
        return result;
    if (valueType == REG_SZ || valueType == REG_EXPAND_SZ || valueType == REG_MULTI_SZ)
        data = NameFromSystem(data);
    type = static_cast<std::int32_t>(valueType);
    length = static_cast<std::uint32_t>(data.size());
    if (data.size() > buffer.size())
        return kMoreData;
    std::copy(data.begin(), data.end(), buffer.begin());
    return kSuccess;
}

std::int32_t WindowsRegistry::QueryInfo(RegistryKey key, std::uint32_t& subkeyCount,
                                        std::uint32_t& longestName) {
    DWORD count = 0;
    DWORD longest = 0;
    const LSTATUS result =
        RegQueryInfoKeyA(HandleOf(key), nullptr, nullptr, nullptr, &count, &longest, nullptr,
                         nullptr, nullptr, nullptr, nullptr, nullptr);
    if (result == ERROR_SUCCESS) {
        subkeyCount = count;
        longestName = longest * 4;  // characters there, bytes here
    }
    return result;
}

std::int32_t WindowsRegistry::EnumerateKey(RegistryKey key, std::uint32_t index,
                                           std::span<char> buffer, std::uint32_t& length) {
    std::string name;
    const LSTATUS result = NameAt(HandleOf(key), index, name);
    if (result != ERROR_SUCCESS)
        return result;
    if (name.size() >= buffer.size())
        return kMoreData;
    *std::copy(name.begin(), name.end(), buffer.begin()) = '\0';
    length = static_cast<std::uint32_t>(name.size());
    return kSuccess;
}

void WindowsRegistry::CloseKey(RegistryKey key) {
    RegCloseKey(HandleOf(key));
}

std::string WindowsRegistry::LocalPath(const std::string& path) {
    return SystemFromName(path);
}

}  // namespace marlo::platform
