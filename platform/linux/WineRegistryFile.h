#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "platform/linux/WineRegistryText.h"

namespace marlo::platform {

/// One file of a Wine prefix's registry, "system.reg" or "user.reg", held in memory as it is on the
/// disk, with an index of its keys; values are decoded when they are asked for. Takes about 1.1
/// times the file's size.
///
/// Paths and names are UTF-8 and compared without regard to case.
class WineRegistryFile {
  public:
    /// A key: the entries of its own and of all keys below it.
    struct Node {
        std::size_t first = 0;
        std::size_t last = 0;   ///< behind the last one
        std::size_t depth = 0;  ///< steps of its path
    };

    /// A key that stands for another one.
    struct Link {
        std::string path;
        std::string target;  ///< from the root of the registry, for example "\Registry\Machine\…"
    };

    /// Nothing at all.
    WineRegistryFile() = default;

    /// Reads a file. A missing one is empty, and so is one that has another format; lines that are
    /// malformed or cut short are skipped.
    /// @param error cleared, or set when there is a file that cannot be read.
    static WineRegistryFile Load(const std::string& path, std::error_code& error);

    /// Whether the prefix is one of 32-bit Windows, which has no view of its own for 32-bit
    /// programs.
    bool IsWin32() const { return isWin32_; }

    /// The key at `path`, or on the way to it, that stands for another one; null without one.
    const Link* FindLink(std::string_view path) const;

    /// Finds a key by its path; "" is the root of the file, which is there unless the file is
    /// empty.
    std::optional<Node> Find(std::string_view path) const;

    /// The names of the keys directly below `node`, in the registry's order.
    std::vector<std::string_view> Subkeys(const Node& node) const;

    /// A value of a key, without regard to the case of its name; "" is the name of the default
    /// value. Where the file has the key twice, the last one that has the value counts.
    /// @return nothing when the key has no such value.
    std::optional<WineValue> Value(const Node& node, std::string_view name) const;

    /// Whether `node` has neither values nor keys below it.
    bool IsBare(const Node& node) const;

  private:
    /// A key that the file has lines for, as positions in the text.
    struct Entry {
        std::uint32_t path = 0;
        std::uint32_t pathLength = 0;
        std::uint32_t lines = 0;
        std::uint32_t linesEnd = 0;
    };

    void Index();
    bool AddKey(std::size_t start, std::size_t end);
    void AddLink(const Entry& entry);
    std::string_view PathOf(const Entry& entry) const;
    std::string_view LinesOf(const Entry& entry) const;

    std::string text_;
    std::vector<Entry> entries_;  // sorted by path
    std::vector<Link> links_;     // sorted by path
    bool isWin32_ = false;
};

}  // namespace marlo::platform
