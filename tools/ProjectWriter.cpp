#include "tools/ProjectWriter.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace marlo::tools {

namespace {

constexpr std::array<std::string_view, 12> kNodeNames = {
    "MTrackList", "MTrackEvent", "MMidiTrackEvent", "MListNode", "MAudioEvent", "CmObject",
    "MDataNode",  "MAutoFader",  "MAudioPart",      "Channel",   "PAudioClip",  "MGroupEvent"};

/// A number as the files hold it, the highest byte first.
std::string BigEndian(std::uint64_t value, int bytes) {
    std::string text;
    for (int i = bytes - 1; i >= 0; --i)
        text += static_cast<char>((value >> (8U * static_cast<unsigned>(i))) & 0xFFU);
    return text;
}

}  // namespace

std::string PluginBytes(const PluginSlot& slot) {
    constexpr std::size_t idWidth = 32;
    std::string id;
    for (std::size_t i = 0; i < 8; ++i)
        id += "0123456789ABCDEF"[(slot.name.size() * 7 + i * 5) % 16];
    id.resize(idWidth, ' ');
    std::string text = std::string("1") + (slot.isVst ? "1" : "0") + id + slot.name + '\0';

    std::string bytes = BigEndian(text.size() & 0xFFU, 4) + text;
    bytes += BigEndian(slot.state, 4) + std::string(8, '\0');
    bytes += BigEndian(slot.chunkSize + 12, 4);
    bytes += "CcnK" + BigEndian(slot.chunkSize + 4, 4) + (slot.isOpaqueBank ? "FBCh" : "FxBk");
    std::minstd_rand random(static_cast<std::uint32_t>(slot.name.size() + slot.chunkSize));
    for (std::size_t i = 0; i < slot.chunkSize; ++i)
        bytes += static_cast<char>(i % 4 == 0 ? 0 : random() % 64);
    return bytes + std::string(16, '\0');
}

ProjectWriter::ProjectWriter(std::uint32_t seed) : random_(seed) {}

void ProjectWriter::AddFiller(std::size_t size) {
    const std::size_t end = body_.size() + size;
    while (body_.size() < end) {
        const std::size_t room = end - body_.size();
        switch (random_() % 5) {
            case 0:
                body_.append(std::min<std::size_t>(room, 8 + random_() % 400), '\0');
                break;
            case 1:
                AddNumbers(std::min<std::size_t>(room / 8 + 1, 1 + random_() % 64));
                break;
            case 2:
                AddDense(std::min<std::size_t>(room, 64 + random_() % 1024));
                break;
            default:
                AddNode(kNodeNames[random_() % kNodeNames.size()]);
        }
    }
}

void ProjectWriter::AddNode(std::string_view name) {
    body_ += std::string("\xFF\xFF\xFF\xFE") + BigEndian(name.size() + 1, 4);
    body_.append(name).append(3, '\0');
    body_ += BigEndian(random_() % 4096, 4);
}

void ProjectWriter::AddNumbers(std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) {
        const double number = static_cast<double>(random_() % 100000) / 64.0;
        std::uint64_t bits = 0;
        std::memcpy(&bits, &number, sizeof bits);
        body_ += BigEndian(bits, 8);
    }
}

void ProjectWriter::AddDense(std::size_t size) {
    std::string dense;
    std::generate_n(std::back_inserter(dense), size,
                    [&] { return static_cast<char>(random_() & 0xFFU); });
    // No bank may appear by chance.
    for (std::size_t at = 0; (at = dense.find("CcnK", at)) != std::string::npos;)
        dense[at] = 'c';
    body_ += dense;
}

std::string ProjectWriter::Bytes() const {
    const std::string root = BigEndian(12, 4) + "Arrangement1" + BigEndian(12, 4) + "PArrangement";
    const std::string arch = "ARCH" + BigEndian(body_.size(), 4) + body_;
    const std::string content = "NUNDROOT" + BigEndian(root.size(), 4) + root + arch;
    return "RIFF" + BigEndian(content.size(), 4) + content;
}

}  // namespace marlo::tools
