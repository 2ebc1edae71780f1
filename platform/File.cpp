#include "platform/File.h"

#include <utility>

namespace marlo::platform {

File::File(File&& other) noexcept : handle_(std::exchange(other.handle_, -1)) {}

File& File::operator=(File&& other) noexcept {
    if (this != &other) {
        Close();
        handle_ = std::exchange(other.handle_, -1);
    }
    return *this;
}

File::~File() {
    Close();
}

}  // namespace marlo::platform
