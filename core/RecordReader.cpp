#include "core/RecordReader.h"

namespace marlo {

RecordReader::RecordReader(const Application& application, std::string_view relativePath,
                           std::int32_t fieldCount)
    : file_(ApplicationPath(application, relativePath)), fields_(application, fieldCount) {}

bool RecordReader::Next() {
    std::string_view line;
    if (!file_.Next(line))
        return false;
    fields_.Split(line);
    return true;
}

}  // namespace marlo
