#include "scan/BankFinder.h"

#include <algorithm>

#include "core/RunTimeError.h"

namespace marlo {

namespace {

constexpr Position kMagicLength = 4;        // "CcnK", "FxBk" and "FBCh"
constexpr Position kSizeLength = 4;         // bytes of bank size behind "CcnK"
constexpr Position kHeaderLength = 12;      // "CcnK", the size, the bank magic
constexpr Position kStateOffset = -13;      // from the "C" of "CcnK"
constexpr Position kBackSearchStart = -52;  // from the "C" of "CcnK"
constexpr Position kTypeOffset = 3;         // from the descriptor's zero byte
constexpr Position kNameOffset = 36;        // from the descriptor's zero byte

}  // namespace

std::optional<Bank> BankFinder::Next() {
    if (!SkipToBank())
        return std::nullopt;
    return ReadDescriptor();
}

/// Goes to the position behind the next bank's header; false when the file ends first.
bool BankFinder::SkipToBank() {
    while (SkipToMarker()) {
        const auto first = reader_.Read(pos_ + kSizeLength);
        pos_ += kSizeLength + 1;
        if (first != 'F')
            continue;
        // The three bytes behind the "F" are taken along, whatever they are.
        const Position rest = pos_;
        pos_ += kMagicLength - 1;
        if (reader_.Matches(rest, "xBk") || reader_.Matches(rest, "BCh"))
            return true;
    }
    return false;
}

/// Goes to the position behind the next marker that no "C" in front of it hides; false when there
/// is none.
bool BankFinder::SkipToMarker() {
    while (const auto marker = reader_.FindMarker(pos_)) {
        pos_ = HopTowards(*marker);
        if (pos_ == *marker) {
            pos_ += kMagicLength;
            return true;
        }
    }
    return false;
}

/// Where the search gets to when it goes from `pos_` to the first marker, a byte at a time but four
/// at every "C": to the marker, or past its "C" when it is hidden.
Position BankFinder::HopTowards(Position marker) {
    // Only a "C" among the three bytes in front of a place takes it along. So the search certainly
    // looks at a place without one, and there is no need to begin further back than that.
    Position place = marker;
    for (Position before = place; before-- > std::max(pos_, place - kMagicLength + 1);)
        if (reader_.Read(before) == 'C')
            place = before;
    while (place < marker)
        place += reader_.Read(place) == 'C' ? kMagicLength : 1;
    return place;
}

std::optional<Position> BankFinder::FindDescriptor(Position from) {
    // The first byte of the file never counts as the descriptor's zero.
    if (const auto zero = reader_.FindBackward(from, searchedTo_ + 1, 0))
        lastZero_ = zero;
    searchedTo_ = from;
    return lastZero_;
}

std::optional<Bank> BankFinder::ReadDescriptor() {
    const Position marker = pos_ - kHeaderLength;
    if (marker + kBackSearchStart < 1)
        throw RunTimeError(ErrorNumber::BadRecordNumber);
    const auto zero = FindDescriptor(marker + kBackSearchStart);
    if (!zero)
        return std::nullopt;
    const auto state = reader_.Read(marker + kStateOffset);
    const auto type = reader_.Read(*zero + kTypeOffset);
    const Position nameStart = *zero + kNameOffset;
    const auto nameEnd = reader_.FindForward(nameStart + 1, 0);
    if (!state || !type || !nameEnd)
        return std::nullopt;
    return Bank{
        .nameStart = nameStart, .nameEnd = *nameEnd, .isVst = *type == '1', .isOn = *state == 1};
}

}  // namespace marlo
