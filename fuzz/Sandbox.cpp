#include "fuzz/Sandbox.h"

#include <cstdlib>
#include <filesystem>
#include <iostream>

namespace marlo::fuzz {

Sandbox& CleanSandbox() {
    static Sandbox sandbox;
    sandbox.window.events.clear();
    sandbox.window.messages.clear();
    sandbox.window.answers.clear();
    sandbox.desktop.shellRequests.clear();
    std::error_code ignored;
    std::filesystem::remove(sandbox.folder.Path("resultfiles/errorlog.txt"), ignored);
    return sandbox;
}

std::string_view TextOf(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}

std::vector<std::string> PartsOf(std::string_view input, std::size_t count) {
    constexpr std::string_view separator = "----\n";
    std::vector<std::string> parts;
    while (parts.size() + 1 < count) {
        const std::size_t end = input.find(separator);
        parts.emplace_back(input.substr(0, end));
        input.remove_prefix(end == std::string_view::npos ? input.size() : end + separator.size());
    }
    parts.emplace_back(input);
    return parts;
}

void Require(bool holds, std::string_view what) {
    if (holds)
        return;
    std::cerr << "This does not hold: " << what << '\n';
    std::abort();
}

}  // namespace marlo::fuzz
