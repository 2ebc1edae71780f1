#include "reports/AlternateColourOnListview.h"

#include "core/ErrorLog.h"

namespace marlo {

std::int32_t LedgerBandHeight(std::int32_t textHeight, std::int32_t twipsPerPixel,
                              std::int32_t imageHeight, std::int32_t sizingKind) {
    constexpr std::int32_t checkBoxHeight = 18;  // pixels
    const std::int32_t textPixels = textHeight / twipsPerPixel;
    switch (sizingKind) {
        case ledger::kTextOnly:
            return textHeight + twipsPerPixel;
        case ledger::kCheckBoxes:
            if (textPixels > checkBoxHeight)
                return textHeight + twipsPerPixel;
            return textHeight + (checkBoxHeight - textPixels) * twipsPerPixel + twipsPerPixel;
        case ledger::kIcons:
            return textHeight + (imageHeight - textPixels) * twipsPerPixel + twipsPerPixel;
        default:
            return textHeight;
    }
}

void SetListViewLedger(const Application& application, ResultList& list, LedgerView& view,
                       std::int32_t bar1Colour, std::int32_t bar2Colour, std::int32_t sizingKind) {
    const bool isShaded = RunGuarded(application, "SetListViewLedger", [&] {
        list.SetVisible(true);
        view.SetLedger(bar1Colour, bar2Colour, sizingKind);
    });
    if (isShaded)
        return;
    try {
        view.RemoveLedger();
    } catch (...) {  // NOLINT(bugprone-empty-catch): the failure behind it is logged.
    }
}

}  // namespace marlo
