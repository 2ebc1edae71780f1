#pragma once

#include <array>
#include <string>
#include <vector>

namespace marlo::tools {

/// The 16 bytes of a GUID as they lie in memory.
using GuidBytes = std::array<unsigned char, 16>;

extern const GuidBytes kAudio;
extern const GuidBytes kVideo;
extern const GuidBytes kPcm;
extern const GuidBytes kNoGuid;

struct MediaType {
    GuidBytes major;
    GuidBytes sub;
};

/// What one pin of a filter accepts.
using Pin = std::vector<MediaType>;

/// A pin that accepts PCM audio.
Pin AudioPin();

/// The registration of a filter with these pins, as the system writes it to "FilterData": records
/// in order, then each GUID once.
std::vector<unsigned char> FilterData(const std::vector<Pin>& pins);

/// The registration of an effect with an input and an output of PCM audio.
std::vector<unsigned char> EffectFilterData();

}  // namespace marlo::tools
