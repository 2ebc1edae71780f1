#include "core/LineWriter.h"

#include <system_error>
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
    std::error_code ignored;
    if (!buffer_.empty())
        file_.Write(buffer_, ignored);
}

void LineWriter::WriteLine(std::string_view text) {
    buffer_.append(text).append("\r\n");
    ++lineCount_;
    if (buffer_.size() >= kWriteSize)
        Flush();
}

void LineWriter::Flush() {
    std::error_code error;
    if (!buffer_.empty())
        file_.Write(buffer_, error);
    buffer_.clear();  // also after a failure: a part of it may have been written
    ThrowOn(error);
}

void LineWriter::FlushToDisk() {
    Flush();
    std::error_code error;
    file_.Flush(error);
    ThrowOn(error);
}

}  // namespace marlo
