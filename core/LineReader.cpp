#include "core/LineReader.h"

#include <system_error>

#include "core/RunTimeError.h"

namespace marlo {

namespace {

constexpr std::size_t kReadSize = std::size_t{64} * 1024;

}  // namespace

LineReader::LineReader(const std::string& path) {
    std::error_code error;
    file_ = platform::File::OpenForReading(path, error);
    ThrowOn(error);
}

bool LineReader::Next(std::string& line) {
    std::size_t searched = 0;
    std::size_t end = buffer_.find('\n', position_);
    while (end == std::string::npos) {
        searched = buffer_.size() - position_;
        if (!ReadMore())
            break;
        end = buffer_.find('\n', searched);
    }
    const bool hasEnd = end != std::string::npos;
    if (!hasEnd && position_ == buffer_.size())
        return false;
    if (!hasEnd)
        end = buffer_.size();
    line.assign(buffer_, position_, end - position_);
    position_ = end + (hasEnd ? 1 : 0);
    if (hasEnd && line.ends_with('\r'))
        line.pop_back();
    return true;
}

/// Reads on, and moves what is left in the buffer to its front.
/// @return false at the end of the file.
bool LineReader::ReadMore() {
    buffer_.erase(0, position_);
    position_ = 0;
    const std::size_t kept = buffer_.size();
    buffer_.resize(kept + kReadSize);
    std::error_code error;
    const std::size_t count = file_.ReadAt(
        offset_, {reinterpret_cast<unsigned char*>(buffer_.data()) + kept, kReadSize}, error);
    offset_ += count;
    buffer_.resize(kept + count);
    ThrowOn(error);
    return count > 0;
}

}  // namespace marlo
