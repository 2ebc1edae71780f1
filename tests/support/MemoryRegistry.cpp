#include "tests/support/MemoryRegistry.h"

#include <algorithm>
#include <iterator>

#include "platform/Ascii.h"

namespace marlo::test {

namespace {

using namespace platform::registry_result;

std::vector<std::string> Steps(const std::string& path) {
    std::vector<std::string> steps;
    for (std::size_t start = 0; start < path.size();) {
        const std::size_t end = std::min(path.find('\\', start), path.size());
        steps.push_back(path.substr(start, end - start));
        start = end + 1;
    }
    return steps;
}

}  // namespace

MemoryRegistry::Key& MemoryRegistry::Make(platform::RegistryKey hive, const std::string& path) {
    Key* key = &hives_[hive];
    for (const std::string& step : Steps(path)) {
        key = &key->subkeys[platform::UpperAscii(step)];
        if (key->name.empty())
            key->name = step;
    }
    return *key;
}

void MemoryRegistry::Set(platform::RegistryKey hive, const std::string& path,
                         const std::string& name, std::int32_t type, Bytes data) {
    Make(hive, path).values[platform::UpperAscii(name)] = {type, std::move(data)};
}

void MemoryRegistry::SetText(platform::RegistryKey hive, const std::string& path,
                             const std::string& name, const std::string& text) {
    Bytes data(text.begin(), text.end());
    data.push_back(0);
    Set(hive, path, name, platform::registry_type::kString, std::move(data));
}

void MemoryRegistry::SetDword(platform::RegistryKey hive, const std::string& path,
                              const std::string& name, std::uint32_t number) {
    Bytes data;
    for (unsigned shift = 0; shift < 32; shift += 8)
        data.push_back(static_cast<unsigned char>(number >> shift));
    Set(hive, path, name, platform::registry_type::kDword, std::move(data));
}

void MemoryRegistry::AddKey(platform::RegistryKey hive, const std::string& path) {
    Make(hive, path);
}

const MemoryRegistry::Key* MemoryRegistry::Find(platform::RegistryKey key) {
    if (const auto hive = hives_.find(key); hive != hives_.end())
        return &hive->second;
    const auto open = open_.find(key);
    return open == open_.end() ? nullptr : open->second;
}

std::int32_t MemoryRegistry::OpenKey(platform::RegistryKey parent, const std::string& path,
                                     platform::RegistryKey& opened) {
    const Key* key = Find(parent);
    for (const std::string& step : Steps(path)) {
        if (key == nullptr)
            return kFileNotFound;
        const auto found = key->subkeys.find(platform::UpperAscii(step));
        key = found == key->subkeys.end() ? nullptr : &found->second;
    }
    if (key == nullptr)
        return kFileNotFound;
    opened = ++lastKey_;
    open_[opened] = key;
    return kSuccess;
}

std::int32_t MemoryRegistry::QueryValue(platform::RegistryKey key, const std::string& name,
                                        std::int32_t& type, std::span<unsigned char> buffer,
                                        std::uint32_t& length) {
    if (onQuery)
        onQuery(name);
    const Key* const found = Find(key);
    if (found == nullptr)
        return kInvalidHandle;
    const auto value = found->values.find(platform::UpperAscii(name));
    if (value == found->values.end())
        return kFileNotFound;
    const Bytes& data = value->second.data;
    type = value->second.type;
    length = static_cast<std::uint32_t>(data.size());
    if (data.size() > buffer.size())
        return kMoreData;
    std::copy(data.begin(), data.end(), buffer.begin());
    return kSuccess;
}

std::int32_t MemoryRegistry::QueryInfo(platform::RegistryKey key, std::uint32_t& subkeyCount,
                                       std::uint32_t& longestName) {
    const Key* const found = Find(key);
    if (found == nullptr || failing.contains("QueryInfo"))
        return kInvalidHandle;
    subkeyCount = static_cast<std::uint32_t>(found->subkeys.size());
    longestName = 0;
    for (const auto& [upper, subkey] : found->subkeys)
        longestName = std::max(longestName, static_cast<std::uint32_t>(upper.size()));
    return kSuccess;
}

std::int32_t MemoryRegistry::EnumerateKey(platform::RegistryKey key, std::uint32_t index,
                                          std::span<char> buffer, std::uint32_t& length) {
    const Key* const found = Find(key);
    if (found == nullptr || failing.contains("EnumerateKey"))
        return kInvalidHandle;
    if (index >= found->subkeys.size())
        return kNoMoreItems;
    const std::string& name = std::next(found->subkeys.begin(), index)->second.name;
    if (name.size() >= buffer.size())
        return kMoreData;
    *std::copy(name.begin(), name.end(), buffer.begin()) = '\0';
    length = static_cast<std::uint32_t>(name.size());
    return kSuccess;
}

void MemoryRegistry::CloseKey(platform::RegistryKey key) {
    open_.erase(key);
}

std::string MemoryRegistry::LocalPath(const std::string& path) {
    return localPath ? localPath(path) : path;
}

}  // namespace marlo::test
