#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <system_error>

namespace marlo::platform {

/// An open key, or one of the hives, which are always open.
using RegistryKey = std::uintptr_t;

inline constexpr RegistryKey kClassesRoot = 0x80000000;
inline constexpr RegistryKey kCurrentUser = 0x80000001;
inline constexpr RegistryKey kLocalMachine = 0x80000002;

/// What the operations answer: the numbers of the platform that registries come from.
namespace registry_result {
inline constexpr std::int32_t kSuccess = 0;
inline constexpr std::int32_t kFileNotFound = 2;  ///< no such key or value
inline constexpr std::int32_t kInvalidHandle = 6;
inline constexpr std::int32_t kMoreData = 234;  ///< the buffer is too small
inline constexpr std::int32_t kNoMoreItems = 259;
}  // namespace registry_result

/// The types of values that have a meaning here.
namespace registry_type {
inline constexpr std::int32_t kString = 1;
inline constexpr std::int32_t kExpandString = 2;
inline constexpr std::int32_t kBinary = 3;
inline constexpr std::int32_t kDword = 4;
inline constexpr std::int32_t kMultiString = 7;
}  // namespace registry_type

/// A registry of keys with typed values, for reading only.
///
/// Names and texts are byte strings in the system's ANSI code page, or UTF-8 where a character is
/// not in that page. Names are compared without regard to case. The steps of a path are separated
/// by "\". Cubase SX is a 32-bit program, so where a registry has a view for those, a key is looked
/// for there first, and in the 64-bit view where it is absent.
///
/// All operations but `CloseKey` return a `registry_result` or another number of that platform.
class Registry {
  public:
    virtual ~Registry() = default;

    /// Opens the key at `path` below `parent`; `parent` itself when the path is empty.
    /// @param opened receives the key, which has to be closed; untouched on a failure.
    virtual std::int32_t OpenKey(RegistryKey parent, const std::string& path,
                                 RegistryKey& opened) = 0;

    /// Reads a value; "" is the name of a key's default value. Texts include their final NUL.
    /// @param type receives the value's type, also when the buffer is too small.
    /// @param length receives the value's length in bytes, also when the buffer is too small, which
    ///        leaves the buffer's contents open. A missing value leaves type and length as they
    ///        are.
    virtual std::int32_t QueryValue(RegistryKey key, const std::string& name, std::int32_t& type,
                                    std::span<unsigned char> buffer, std::uint32_t& length) = 0;

    /// Counts the keys directly below `key`.
    /// @param longestName receives the length of their longest name in bytes.
    virtual std::int32_t QueryInfo(RegistryKey key, std::uint32_t& subkeyCount,
                                   std::uint32_t& longestName) = 0;

    /// Reads the name of a key directly below `key`, in the registry's own order.
    /// @param index 0-based.
    /// @param buffer has to hold the name and a NUL.
    /// @param length receives the name's length in bytes, without the NUL.
    virtual std::int32_t EnumerateKey(RegistryKey key, std::uint32_t index, std::span<char> buffer,
                                      std::uint32_t& length) = 0;

    /// Closes a key that `OpenKey` has given. A hive stays open.
    virtual void CloseKey(RegistryKey key) = 0;

    /// A path that stands in the registry, as one that opens the same file on this machine; empty
    /// when there is none.
    virtual std::string LocalPath(const std::string& path) = 0;

    /// Why nothing can be read, if a registry is there and cannot be read. A machine without a
    /// registry has an empty one.
    virtual std::error_code Problem() { return {}; }
};

}  // namespace marlo::platform
