#include "platform/linux/WinePrefix.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <iterator>
#include <utility>

#include "platform/AnsiCodePage.h"
#include "platform/FileSystem.h"

namespace marlo::platform {

namespace {

using namespace registry_result;

constexpr const char* k32BitNode = "Wow6432Node";
constexpr const char* kClasses = "Software\\Classes";
constexpr int kMostLinks = 16;

std::string JoinKeys(std::string_view parent, std::string_view path) {
    std::string joined(parent);
    if (!parent.empty() && !path.empty())
        joined += '\\';
    return joined.append(path);
}

bool IsHive(RegistryKey key) {
    return key == kClassesRoot || key == kCurrentUser || key == kLocalMachine;
}

/// The name of an entry of `folder` that is `name` but for the case of its letters; empty when
/// there is none.
std::string MatchName(const std::string& folder, const std::string& name) {
    std::error_code error;
    if (std::filesystem::exists(JoinPath(folder, name), error))
        return name;
    const auto open = Folder::Open(folder, error);
    if (error)
        return {};
    auto entries = open.Entries(error);
    std::vector<std::string> names;
    for (SubfolderEntry& subfolder : entries.folders)
        names.push_back(std::move(subfolder.name));
    for (FileEntry& file : entries.files)
        names.push_back(std::move(file.name));
    // More than one may match; which one does must not depend on the order of the folder.
    std::sort(names.begin(), names.end());
    const auto found = std::find_if(names.begin(), names.end(), [&](const std::string& candidate) {
        return CompareNames(candidate, name) == 0;
    });
    return found == names.end() ? std::string() : *found;
}

/// `path` without the spaces at its ends, which name nothing on Windows.
std::string_view TrimSpaces(std::string_view path) {
    path.remove_prefix(std::min(path.find_first_not_of(' '), path.size()));
    return path.substr(0, path.find_last_not_of(' ') + 1);
}

/// Takes the first name off a Windows path.
std::string TakeName(std::string_view& path) {
    constexpr const char* separators = "\\/";
    path.remove_prefix(std::min(path.find_first_not_of(separators), path.size()));
    const std::string_view name = path.substr(0, path.find_first_of(separators));
    path.remove_prefix(name.size());
    return std::string(name);
}

}  // namespace

std::string WinePrefix::UsersFolder() {
    const char* const prefix = std::getenv("WINEPREFIX");
    if (prefix != nullptr && *prefix != '\0')
        return prefix;
    const char* const home = std::getenv("HOME");
    return home != nullptr && *home != '\0' ? JoinPath(home, ".wine") : std::string();
}

void WinePrefix::Load() {
    if (std::exchange(isLoaded_, true) || folder_.empty())
        return;
    machine_ = WineRegistryFile::Load(JoinPath(folder_, "system.reg"), problem_);
    std::error_code userProblem;
    user_ = WineRegistryFile::Load(JoinPath(folder_, "user.reg"), userProblem);
    if (!problem_)
        problem_ = userProblem;
}

std::error_code WinePrefix::Problem() {
    Load();
    return problem_;
}

/// Where a path leads when the keys on it that stand for others are followed.
/// @return nothing when it leads out of the files, or in a circle.
const WineRegistryFile* WinePrefix::FollowLinks(const WineRegistryFile* file,
                                                std::string& path) const {
    for (int followed = 0; file != nullptr && followed < kMostLinks; ++followed) {
        const auto* const link = file->FindLink(path);
        if (link == nullptr)
            return file;
        const std::string target =
            JoinKeys(std::string_view(link->target).substr(1), *RestBelow(path, link->path));
        file = nullptr;
        if (const auto rest = RestBelow(target, "Registry\\Machine")) {
            file = &machine_;
            path = *rest;
        } else if (const auto users = RestBelow(target, "Registry\\User")) {
            // One step more for the user, of whom a prefix has one.
            file = &user_;
            path = *RestBelow(*users, Head(*users, 1));
        }
    }
    return nullptr;
}

void WinePrefix::AddPlace(std::vector<Place>& places, const WineRegistryFile& file,
                          const std::string& path) const {
    std::string target = path;
    const WineRegistryFile* const targetFile = FollowLinks(&file, target);
    if (targetFile == nullptr)
        return;
    if (const auto node = targetFile->Find(target))
        places.push_back({targetFile, *node});
}

std::vector<WinePrefix::Place> WinePrefix::Classes(const std::string& path) const {
    std::vector<Place> places;
    AddPlace(places, user_, path);
    AddPlace(places, machine_, path);
    return places;
}

std::vector<WinePrefix::Place> WinePrefix::PlacesIn32BitView(RegistryKey hive,
                                                             std::string_view path) const {
    if (hive == kClassesRoot)
        return Classes(JoinKeys(JoinKeys(kClasses, k32BitNode), path));
    std::vector<Place> places;
    if (const auto rest = RestBelow(path, "Software"))
        AddPlace(places, hive == kCurrentUser ? user_ : machine_,
                 JoinKeys(JoinKeys("Software", k32BitNode), *rest));
    return places;
}

std::vector<WinePrefix::Place> WinePrefix::PlacesIn64BitView(RegistryKey hive,
                                                             std::string_view path) const {
    if (hive == kClassesRoot)
        return Classes(JoinKeys(kClasses, path));
    std::vector<Place> places;
    AddPlace(places, hive == kCurrentUser ? user_ : machine_, std::string(path));
    return places;
}

WinePrefix::Key WinePrefix::Resolve(RegistryKey hive, std::string path) const {
    std::vector<Place> places;
    if (!machine_.IsWin32())
        places = PlacesIn32BitView(hive, path);
    const bool isBare = std::all_of(places.begin(), places.end(), [](const Place& place) {
        return place.file->IsBare(place.node);
    });
    if (isBare) {
        auto wide = PlacesIn64BitView(hive, path);
        if (!wide.empty())
            places = std::move(wide);
    }
    return {hive, std::move(path), std::move(places), std::nullopt};
}

WinePrefix::Key* WinePrefix::Find(RegistryKey key) {
    Load();
    const auto found = keys_.find(key);
    if (found != keys_.end())
        return &found->second;
    return IsHive(key) ? &keys_.emplace(key, Resolve(key, "")).first->second : nullptr;
}

std::int32_t WinePrefix::OpenKey(RegistryKey parent, const std::string& path, RegistryKey& opened) {
    const Key* const parentKey = Find(parent);
    if (parentKey == nullptr)
        return kInvalidHandle;
    std::string steps = Utf8FromName(path);
    while (steps.ends_with('\\'))
        steps.pop_back();
    Key key = Resolve(parentKey->hive, JoinKeys(parentKey->path, steps));
    if (key.places.empty() && !key.path.empty())
        return kFileNotFound;
    opened = ++lastKey_;
    keys_.emplace(opened, std::move(key));
    return kSuccess;
}

std::int32_t WinePrefix::QueryValue(RegistryKey key, const std::string& name, std::int32_t& type,
                                    std::span<unsigned char> buffer, std::uint32_t& length) {
    const Key* const found = Find(key);
    if (found == nullptr)
        return kInvalidHandle;
    const std::string wanted = Utf8FromName(name);
    for (const Place& place : found->places) {
        const auto value = place.file->Value(place.node, wanted);
        if (!value)
            continue;
        type = value->type;
        length = static_cast<std::uint32_t>(value->data.size());
        if (value->data.size() > buffer.size())
            return kMoreData;
        std::copy(value->data.begin(), value->data.end(), buffer.begin());
        return kSuccess;
    }
    return kFileNotFound;
}

const std::vector<std::string>& WinePrefix::SubkeysOf(Key& key) {
    if (key.subkeys)
        return *key.subkeys;
    std::vector<std::string_view> names;
    for (const Place& place : key.places) {
        const auto more = place.file->Subkeys(place.node);
        std::vector<std::string_view> merged;
        std::set_union(names.begin(), names.end(), more.begin(), more.end(),
                       std::back_inserter(merged),
                       [](std::string_view left, std::string_view right) {
                           return CompareNames(left, right) < 0;
                       });
        names = std::move(merged);
    }
    auto& subkeys = key.subkeys.emplace();
    std::transform(names.begin(), names.end(), std::back_inserter(subkeys), NameFromUtf8);
    return subkeys;
}

std::int32_t WinePrefix::QueryInfo(RegistryKey key, std::uint32_t& subkeyCount,
                                   std::uint32_t& longestName) {
    Key* const found = Find(key);
    if (found == nullptr)
        return kInvalidHandle;
    const auto& subkeys = SubkeysOf(*found);
    subkeyCount = static_cast<std::uint32_t>(subkeys.size());
    longestName = 0;
    for (const std::string& name : subkeys)
        longestName = std::max(longestName, static_cast<std::uint32_t>(name.size()));
    return kSuccess;
}

std::int32_t WinePrefix::EnumerateKey(RegistryKey key, std::uint32_t index, std::span<char> buffer,
                                      std::uint32_t& length) {
    Key* const found = Find(key);
    if (found == nullptr)
        return kInvalidHandle;
    const auto& subkeys = SubkeysOf(*found);
    if (index >= subkeys.size())
        return kNoMoreItems;
    const std::string& name = subkeys[index];
    if (name.size() >= buffer.size())
        return kMoreData;
    *std::copy(name.begin(), name.end(), buffer.begin()) = '\0';
    length = static_cast<std::uint32_t>(name.size());
    return kSuccess;
}

void WinePrefix::CloseKey(RegistryKey key) {
    if (!IsHive(key))
        keys_.erase(key);
}

std::string WinePrefix::LocalPath(const std::string& path) {
    const std::string utf8 = Utf8FromName(path);
    std::string_view rest = TrimSpaces(utf8);
    std::string drive = TakeName(rest);
    if (folder_.empty() || utf8.find('\0') != std::string::npos || drive.size() != 2 ||
        drive[1] != ':')
        return {};
    const std::string devices = JoinPath(folder_, "dosdevices");
    drive = MatchName(devices, drive);
    if (drive.empty())
        return {};
    std::error_code error;
    std::string local = std::filesystem::canonical(JoinPath(devices, drive), error).string();
    for (std::string name = TakeName(rest); !error && !name.empty(); name = TakeName(rest)) {
        name = MatchName(local, name);
        if (name.empty())
            return {};
        local = JoinPath(local, name);
    }
    return error ? std::string() : local;
}

}  // namespace marlo::platform
