#include "scan/BlockReader.h"

#include <algorithm>
#include <cstring>
#include <system_error>

#include "core/RunTimeError.h"
#include "scan/MarkerSearch.h"

namespace marlo {

namespace {

constexpr auto kStep = static_cast<Position>(BlockReader::kBlockSize);

Position StartOfBlockWith(Position position) {
    return (position - 1) / kStep * kStep + 1;
}

}  // namespace

BlockReader::BlockReader(const std::string& path) {
    std::error_code error;
    file_ = platform::File::OpenForReading(path, error);
    ThrowOn(error);
    memory_ = std::move(SpareMemory());
    if (!memory_)
        memory_ = std::make_unique_for_overwrite<Memory>();
    for (std::size_t i = 0; i < kBlockCount; ++i)
        blocks_[i].bytes = memory_->blocks[i].data();
}

BlockReader::~BlockReader() {
    if (memory_)
        SpareMemory() = std::move(memory_);
}

/// The last reader's memory, kept for the next: fresh memory for each of thousands of files would
/// cost as much as reading them.
std::unique_ptr<BlockReader::Memory>& BlockReader::SpareMemory() {
    static thread_local std::unique_ptr<Memory> spare;
    return spare;
}

const BlockReader::Block& BlockReader::SwitchTo(Position position) {
    if (position < 1)
        throw RunTimeError(ErrorNumber::BadRecordNumber);
    Block& other = current_ == blocks_.data() ? blocks_.back() : blocks_.front();
    const Position first = StartOfBlockWith(position);
    if (current_->first != first) {
        current_ = &other;
        if (other.first != first)
            Load(other, first);
    }
    return *current_;
}

void BlockReader::Load(Block& block, Position first) {
    block.first = first;
    block.end = first;
    std::error_code error;
    const std::size_t size =
        file_.ReadAt(static_cast<std::uint64_t>(first - 1), {block.bytes, kBlockSize}, error);
    ThrowOn(error);
    block.end = first + static_cast<Position>(size);
}

bool BlockReader::Matches(Position position, std::string_view text) {
    return std::all_of(text.begin(), text.end(), [&](char expected) {
        return Read(position++) == static_cast<unsigned char>(expected);
    });
}

std::optional<Position> BlockReader::FindMarker(Position from) {
    for (;;) {
        const Block& block = BlockWith(from);
        const Position end = block.end;
        if (from >= end)
            return std::nullopt;
        const auto* const last = block.AddressOf(end);
        const auto* const found = marlo::FindMarker(block.AddressOf(from), last);
        if (found != last)
            return end - (last - found);
        // One that begins in this block and ends in the next.
        const auto length = static_cast<Position>(kBankMarker.size());
        for (from = std::max(from, end - length + 1); from < end; ++from)
            if (Matches(from, kBankMarker))
                return from;
    }
}

std::optional<Position> BlockReader::FindForward(Position from, unsigned char value) {
    for (;;) {
        const Block& block = BlockWith(from);
        if (from >= block.end)
            return std::nullopt;
        const auto* const start = block.AddressOf(from);
        const void* const found =
            std::memchr(start, value, static_cast<std::size_t>(block.end - from));
        if (found != nullptr)
            return from + (static_cast<const unsigned char*>(found) - start);
        from = block.end;
    }
}

std::optional<Position> BlockReader::FindBackward(Position from, Position low,
                                                  unsigned char value) {
    while (from >= low) {
        const Block& block = BlockWith(from);
        const Position stop = std::max(low, block.first);
        // A file that has become shorter since has no bytes there to look at.
        from = std::min(from, block.end - 1);
        for (; from >= stop; --from)
            if (*block.AddressOf(from) == value)
                return from;
    }
    return std::nullopt;
}

std::string BlockReader::Text(Position first, Position end) {
    std::string text;
    text.reserve(static_cast<std::size_t>(end - first));
    while (first < end) {
        const Block& block = BlockWith(first);
        const Position stop = std::min(end, block.end);
        if (stop <= first)
            break;
        text.append(block.AddressOf(first), block.AddressOf(stop));
        first = stop;
    }
    return text;
}

}  // namespace marlo
