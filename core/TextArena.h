#pragma once

#include <cstddef>
#include <memory>
#include <string_view>
#include <vector>

namespace marlo {

/// Memory for many texts that are all given up at once.
class TextArena {
  public:
    /// A copy of `text` that stays where it is until everything is given up.
    std::string_view Copy(std::string_view text);

    /// Puts `text` in the place of a copy that is no shorter.
    static void Replace(const char* copy, std::string_view text);

    /// Gives all texts up. Their memory is kept for others: new memory takes the system longer than
    /// filling it takes.
    void Clear();

  private:
    struct Block {
        std::unique_ptr<char[]> bytes;
        std::size_t size = 0;
    };

    std::vector<Block> blocks_;
    std::size_t current_ = 0;  ///< the block that is being filled; those before it are full
    std::size_t used_ = 0;     ///< bytes of it
};

}  // namespace marlo
