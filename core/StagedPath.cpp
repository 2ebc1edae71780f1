#include "core/StagedPath.h"

#include <utility>

#include "core/ErrorLog.h"
#include "platform/FileSystem.h"

namespace marlo {

StagedPath::StagedPath(std::string path) : path_(std::move(path)) {}

StagedPath::~StagedPath() {
    IgnoreFailures([this] {
        std::error_code ignored;
        if (!isInPlace_)
            platform::RemoveFile(path_, ignored);
    });
}

void StagedPath::MoveTo(const std::string& place, std::error_code& error) {
    platform::MoveIntoPlace(path_, place, error);
    isInPlace_ = !error;
}

}  // namespace marlo
