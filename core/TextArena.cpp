#include "core/TextArena.h"

#include <algorithm>
#include <string>

namespace marlo {

namespace {

constexpr std::size_t kBlockSize = std::size_t{256} * 1024;

}  // namespace

std::string_view TextArena::Copy(std::string_view text) {
    while (current_ < blocks_.size() && blocks_[current_].size - used_ < text.size()) {
        ++current_;
        used_ = 0;
    }
    if (current_ == blocks_.size()) {
        const std::size_t size = std::max(kBlockSize, text.size());
        blocks_.push_back({std::make_unique_for_overwrite<char[]>(size), size});
    }
    char* const copy = blocks_[current_].bytes.get() + used_;
    used_ += text.copy(copy, text.size());
    return {copy, text.size()};
}

void TextArena::Replace(const char* copy, std::string_view text) {
    // `text` may be a part of the old one.
    std::char_traits<char>::move(const_cast<char*>(copy), text.data(), text.size());
}

void TextArena::Clear() {
    current_ = 0;
    used_ = 0;
}

}  // namespace marlo
