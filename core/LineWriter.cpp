#include "core/LineWriter.h"

#include <utility>

#include "core/RunTimeError.h"

namespace marlo {

namespace {

constexpr std::size_t kWriteSize = std::size_t{256} * 1024;

}  // namespace

LineWriter::LineWriter(platform::File file) : file_(std::move(file)) {
    buffer_.reserve(kWriteSize);
}

LineWriter::~LineWriter() {
    HandOver();
}

void LineWriter::WriteLine(std::string_view text) {
    buffer_.append(text).append("\r\n");
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
