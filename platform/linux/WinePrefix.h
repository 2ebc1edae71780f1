#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Registry.h"
#include "platform/linux/WineRegistryFile.h"

namespace marlo::platform {

/// The registry of a Wine prefix, read from its files without Wine. They are read once, when
/// something is first asked for; a missing one is an empty registry.
///
/// HKEY_CLASSES_ROOT is the merge of "Software\Classes" of the user and of the machine, the user's
/// first. The 32-bit view is what lies below "Wow6432Node"; a prefix of 32-bit Windows has but one
/// view. Wine leaves bare keys in the 32-bit view of a prefix without 32-bit programs; such a key
/// counts as absent where the 64-bit view has it.
class WinePrefix final : public Registry {
  public:
    /// @param folder the prefix's folder; "" for a machine without one.
    explicit WinePrefix(std::string folder) : folder_(std::move(folder)) {}

    /// The folder of the user's prefix: `WINEPREFIX` of the environment, else "~/.wine"; empty when
    /// there is no home.
    static std::string UsersFolder();

    std::int32_t OpenKey(RegistryKey parent, const std::string& path, RegistryKey& opened) override;
    std::int32_t QueryValue(RegistryKey key, const std::string& name, std::int32_t& type,
                            std::span<unsigned char> buffer, std::uint32_t& length) override;
    std::int32_t QueryInfo(RegistryKey key, std::uint32_t& subkeyCount,
                           std::uint32_t& longestName) override;
    std::int32_t EnumerateKey(RegistryKey key, std::uint32_t index, std::span<char> buffer,
                              std::uint32_t& length) override;
    void CloseKey(RegistryKey key) override;

    /// A path with a drive letter leads through the prefix's "dosdevices", each name matched
    /// without regard to case. Spaces at the path's ends count for nothing.
    std::string LocalPath(const std::string& path) override;

    std::error_code Problem() override;

  private:
    /// A key of one file.
    struct Place {
        const WineRegistryFile* file = nullptr;
        WineRegistryFile::Node node;
    };

    /// A key as it is seen from outside: what the places in it have, the first one's first.
    struct Key {
        RegistryKey hive = 0;
        std::string path;  ///< UTF-8, below the hive
        std::vector<Place> places;
        std::optional<std::vector<std::string>> subkeys;  ///< listed when first asked for
    };

    void Load();
    Key* Find(RegistryKey key);
    Key Resolve(RegistryKey hive, std::string path) const;
    std::vector<Place> PlacesIn32BitView(RegistryKey hive, std::string_view path) const;
    std::vector<Place> PlacesIn64BitView(RegistryKey hive, std::string_view path) const;
    std::vector<Place> Classes(const std::string& path) const;
    void AddPlace(std::vector<Place>& places, const WineRegistryFile& file,
                  const std::string& path) const;
    const WineRegistryFile* FollowLinks(const WineRegistryFile* file, std::string& path) const;
    static const std::vector<std::string>& SubkeysOf(Key& key);

    std::string folder_;
    bool isLoaded_ = false;
    std::error_code problem_;
    WineRegistryFile machine_;
    WineRegistryFile user_;
    std::map<RegistryKey, Key> keys_;
    RegistryKey lastKey_ = 0;
};

}  // namespace marlo::platform
