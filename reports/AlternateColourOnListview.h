#pragma once

#include <cstdint>

#include "core/Application.h"
#include "reports/ResultList.h"

namespace marlo {

// The rows of a list view are shaded in two bands in turn, like a ledger. Colours have blue in the
// high byte and red in the low one.

inline constexpr std::int32_t kLedgerBar1 = 0xFFFFFF;
inline constexpr std::int32_t kLedgerBar2 = 0xFFF3EF;

/// What stands in the rows of a list view, which decides their height.
namespace ledger {
inline constexpr std::int32_t kTextOnly = 0;
inline constexpr std::int32_t kCheckBoxes = 1;
inline constexpr std::int32_t kIcons = 2;
}  // namespace ledger

/// The height of a band, in twips.
/// @param textHeight of "W" in the list's font, in twips.
/// @param twipsPerPixel of the screen, in the vertical; not 0.
/// @param imageHeight of the list's icons, in pixels.
/// @param sizingKind one of `ledger`; with any other, a band is as high as the text.
std::int32_t LedgerBandHeight(std::int32_t textHeight, std::int32_t twipsPerPixel,
                              std::int32_t imageHeight, std::int32_t sizingKind);

/// A list view whose rows can be shaded.
class LedgerView {
  public:
    virtual ~LedgerView() = default;

    /// Shades the rows: the first one in the first colour, then in turn.
    virtual void SetLedger(std::int32_t bar1Colour, std::int32_t bar2Colour,
                           std::int32_t sizingKind) = 0;
    /// Takes the shading away.
    virtual void RemoveLedger() = 0;
};

/// Shades the rows of a list, and makes it visible. A failure is logged under "SetListViewLedger",
/// not told, and leaves the list without shading.
/// @param list what `view` shows.
void SetListViewLedger(const Application& application, ResultList& list, LedgerView& view,
                       std::int32_t bar1Colour, std::int32_t bar2Colour, std::int32_t sizingKind);

}  // namespace marlo
