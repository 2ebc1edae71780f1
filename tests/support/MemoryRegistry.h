#pragma once

#include <functional>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Registry.h"

namespace marlo::test {

/// A registry in memory. Keys and values are listed in the order of their upper-cased names.
class MemoryRegistry final : public platform::Registry {
  public:
    using Bytes = std::vector<unsigned char>;

    /// Writes a value, making the keys it needs.
    void Set(platform::RegistryKey hive, const std::string& path, const std::string& name,
             std::int32_t type, Bytes data);
    /// A REG_SZ value, with its final NUL.
    void SetText(platform::RegistryKey hive, const std::string& path, const std::string& name,
                 const std::string& text);
    void SetDword(platform::RegistryKey hive, const std::string& path, const std::string& name,
                  std::uint32_t number);
    /// Makes a key without values, and those on the way to it.
    void AddKey(platform::RegistryKey hive, const std::string& path);

    std::int32_t OpenKey(platform::RegistryKey parent, const std::string& path,
                         platform::RegistryKey& opened) override;
    std::int32_t QueryValue(platform::RegistryKey key, const std::string& name, std::int32_t& type,
                            std::span<unsigned char> buffer, std::uint32_t& length) override;
    std::int32_t QueryInfo(platform::RegistryKey key, std::uint32_t& subkeyCount,
                           std::uint32_t& longestName) override;
    std::int32_t EnumerateKey(platform::RegistryKey key, std::uint32_t index,
                              std::span<char> buffer, std::uint32_t& length) override;
    void CloseKey(platform::RegistryKey key) override;
    std::string LocalPath(const std::string& path) override;

    /// How many keys are open that were opened.
    std::size_t OpenKeyCount() const { return open_.size(); }

    /// The names of operations that fail: "QueryInfo", "EnumerateKey".
    std::set<std::string> failing;
    /// What `LocalPath` answers; without it, the path as it is.
    std::function<std::string(const std::string&)> localPath;
    /// Called before each query, with the value's name.
    std::function<void(const std::string&)> onQuery;

  private:
    struct Value {
        std::int32_t type = 0;
        Bytes data;
    };
    struct Key {
        std::string name;  // as it was written
        std::map<std::string, Value> values;
        std::map<std::string, Key> subkeys;
    };

    Key& Make(platform::RegistryKey hive, const std::string& path);
    const Key* Find(platform::RegistryKey key);

    std::map<platform::RegistryKey, Key> hives_;
    std::map<platform::RegistryKey, const Key*> open_;
    platform::RegistryKey lastKey_ = 0;
};

}  // namespace marlo::test
