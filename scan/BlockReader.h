#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/File.h"

namespace marlo {

/// A place in a file: 1 is its first byte.
using Position = std::int64_t;

/// Reads single bytes of a file, anywhere in it, through a few large blocks.
///
/// However long the file, no more than `kBlockCount` blocks of it are in memory. The block before
/// the current one is kept, as a plug-in's description may begin there. Both fit the second-level
/// cache of today's processors.
///
/// Every routine throws `RunTimeError` when reading fails, and "Bad record number" for a position
/// before the start of the file.
class BlockReader {
  public:
    static constexpr std::size_t kBlockSize = std::size_t{256} * 1024;  ///< bytes
    static constexpr std::size_t kBlockCount = 2;

    /// Opens the file at `path`.
    explicit BlockReader(const std::string& path);
    BlockReader(const BlockReader&) = delete;
    BlockReader& operator=(const BlockReader&) = delete;
    BlockReader(BlockReader&&) = delete;
    BlockReader& operator=(BlockReader&&) = delete;
    ~BlockReader();

    /// The byte at `position`; nothing past the end of the file.
    std::optional<unsigned char> Read(Position position) {
        const Block& block = BlockWith(position);
        if (position >= block.end)
            return std::nullopt;
        return *block.AddressOf(position);
    }

    /// Whether the bytes from `position` on are `text`; no if the file ends before.
    bool Matches(Position position, std::string_view text);

    /// Where the first `kBankMarker` from `from` on begins; nothing if there is none.
    std::optional<Position> FindMarker(Position from);

    /// The first position from `from` on that holds `value`; nothing if there is none.
    std::optional<Position> FindForward(Position from, unsigned char value);

    /// The last position from `low` to `from`, both included, that holds `value`; nothing if there
    /// is none. `from` lies in the file.
    std::optional<Position> FindBackward(Position from, Position low, unsigned char value);

    /// The bytes from `first` up to, not including, `end`; fewer when the file has become shorter.
    std::string Text(Position first, Position end);

  private:
    /// Aligned, as the system takes some 40 % longer to copy into memory that is not.
    struct alignas(64) Memory {
        std::array<std::array<unsigned char, kBlockSize>, kBlockCount> blocks;
    };
    struct Block {
        Position first = 0;  ///< the position of its first byte; 0 = not loaded
        Position end = 0;    ///< the position after its last byte
        unsigned char* bytes = nullptr;

        const unsigned char* AddressOf(Position position) const {
            return bytes + (position - first);
        }
    };
    static std::unique_ptr<Memory>& SpareMemory();

    const Block& BlockWith(Position position) {
        if (position >= current_->first && position < current_->end)
            return *current_;
        return SwitchTo(position);
    }
    const Block& SwitchTo(Position position);
    void Load(Block& block, Position first);

    platform::File file_;
    std::unique_ptr<Memory> memory_;
    std::array<Block, kBlockCount> blocks_;
    Block* current_ = blocks_.data();
};

}  // namespace marlo
