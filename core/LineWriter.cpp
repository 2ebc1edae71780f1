#include "core/LineWriter.h"

#include <algorithm>
#include <utility>

#include "core/RunTimeError.h"

namespace marlo {

namespace {

constexpr std::size_t kWriteSize = std::size_t{256} * 1024;
constexpr std::string_view kLineEnd = "\r\n";

}  // namespace

LineWriter::LineWriter(platform::File file) noexcept : file_(std::move(file)) {}

LineWriter::~LineWriter() {
    HandOver();
}

void LineWriter::WriteLine(std::string_view text) {
    // Where memory runs out, it does so before a part of the line is in the buffer.
    buffer_.reserve(std::max(kWriteSize, buffer_.size() + text.size() + kLineEnd.size()));
    buffer_.append(text).append(kLineEnd);
    ++lineCount_;
    if (buffer_.size() >= kWriteSize)
        Flush();
}

void LineWriter::HandOver() {
    if (!buffer_.empty() && !failure_)
        file_.Write(buffer_, failure_);
    buffer_.clear();  // also after a failure: a part of it may have been written
}

void LineWriter::Flush() {
    HandOver();
    ThrowOn(failure_);
}

void LineWriter::FlushToDisk() {
    Flush();
    file_.Flush(failure_);
    ThrowOn(failure_);
}

}  // namespace marlo
