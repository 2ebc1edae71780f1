#include "tools/FilterWriter.h"

#include <cstdint>
#include <map>

namespace marlo::tools {

namespace {

using Bytes = std::vector<unsigned char>;

constexpr std::size_t kHeaderSize = 16;
constexpr std::size_t kPinSize = 24;
constexpr std::size_t kMediaTypeSize = 16;

void AddNumber(Bytes& bytes, std::size_t number) {
    for (unsigned shift = 0; shift < 32; shift += 8)
        bytes.push_back(static_cast<unsigned char>(number >> shift));
}

void AddMark(Bytes& bytes, std::size_t index, const char* kind) {
    bytes.push_back(static_cast<unsigned char>('0' + index % 10));
    for (const char* c = kind; *c != '\0'; ++c)
        bytes.push_back(static_cast<unsigned char>(*c));
}

/// The GUIDs behind the records, each at the offset where it is first used.
class GuidPool {
  public:
    explicit GuidPool(std::size_t start) : start_(start) {}

    std::size_t OffsetOf(const GuidBytes& guid) {
        const auto [found, isNew] = offsets_.try_emplace(guid, start_ + bytes_.size());
        if (isNew)
            bytes_.insert(bytes_.end(), guid.begin(), guid.end());
        return found->second;
    }

    const Bytes& Content() const { return bytes_; }

  private:
    std::size_t start_;
    Bytes bytes_;
    std::map<GuidBytes, std::size_t> offsets_;
};

}  // namespace

const GuidBytes kAudio = {'a', 'u', 'd', 's', 0, 0, 0x10, 0, 0x80, 0, 0, 0xAA, 0, 0x38, 0x9B, 0x71};
const GuidBytes kVideo = {'v', 'i', 'd', 's', 0, 0, 0x10, 0, 0x80, 0, 0, 0xAA, 0, 0x38, 0x9B, 0x71};
const GuidBytes kPcm = {1, 0, 0, 0, 0, 0, 0x10, 0, 0x80, 0, 0, 0xAA, 0, 0x38, 0x9B, 0x71};
const GuidBytes kNoGuid = {};

Pin AudioPin() {
    return {{kAudio, kPcm}};
}

std::vector<unsigned char> FilterData(const std::vector<Pin>& pins) {
    constexpr std::size_t version = 2;
    constexpr std::size_t merit = 0x00200000;
    std::size_t recordsEnd = kHeaderSize;
    for (const Pin& pin : pins)
        recordsEnd += kPinSize + kMediaTypeSize * pin.size();
    GuidPool guids(recordsEnd);
    Bytes bytes;
    for (const std::size_t number : {version, merit, pins.size(), std::size_t{0}})
        AddNumber(bytes, number);
    for (std::size_t i = 0; i < pins.size(); ++i) {
        AddMark(bytes, i, "pi3");
        for (const std::size_t number :
             {std::size_t{0}, std::size_t{1}, pins[i].size(), std::size_t{0}, std::size_t{0}})
            AddNumber(bytes, number);
        for (std::size_t j = 0; j < pins[i].size(); ++j) {
            AddMark(bytes, j, "ty3");
            AddNumber(bytes, 0);
            AddNumber(bytes, guids.OffsetOf(pins[i][j].major));
            AddNumber(bytes, guids.OffsetOf(pins[i][j].sub));
        }
    }
    bytes.insert(bytes.end(), guids.Content().begin(), guids.Content().end());
    return bytes;
}

std::vector<unsigned char> EffectFilterData() {
    return FilterData({AudioPin(), AudioPin()});
}

}  // namespace marlo::tools
