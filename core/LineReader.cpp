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

bool LineReader::Next(std::string_view& line) {
    std::size_t searched = 0;
    for (;;) {
        const std::string_view unread = std::string_view(buffer_).substr(begin_, end_ - begin_);
        const std::size_t length = unread.find('\n', searched);
        if (length != std::string_view::npos) {
            line = unread.substr(0, length);
            begin_ += length + 1;
            if (line.ends_with('\r'))
                line.remove_suffix(1);
            return true;
        }
        searched = unread.size();
        if (searched > kMaxLineLength)
            throw RunTimeError(ErrorNumber::OutOfMemory);
        if (!ReadMore())
            break;
    }
    line = std::string_view(buffer_).substr(begin_, end_ - begin_);
    begin_ = end_;
    return !line.empty();
}

/// Reads on, behind what is left in the buffer, which moves to its front.
/// @return false at the end of the file.
bool LineReader::ReadMore() {
    buffer_.erase(0, begin_);
    end_ -= begin_;
    begin_ = 0;
    buffer_.resize(end_ + kReadSize);
    std::error_code error;
    const std::size_t count = file_.ReadAt(
        offset_, {reinterpret_cast<unsigned char*>(buffer_.data()) + end_, kReadSize}, error);
    offset_ += count;
    end_ += count;
    ThrowOn(error);
    return count > 0;
}

}  // namespace marlo
