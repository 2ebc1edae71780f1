#include "platform/Announce.h"

#include <iostream>

namespace marlo::platform {

void Announce(Stream stream, const std::string& text) {
    (stream == Stream::Out ? std::cout : std::cerr) << text << std::flush;
}

}  // namespace marlo::platform
