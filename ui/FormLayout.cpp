#include "ui/FormLayout.h"

#include <algorithm>

namespace marlo {

namespace {

// What the window was drawn with.
constexpr std::int32_t kMenuLeft = 180;
constexpr std::int32_t kMenuWidth = 2688;
constexpr std::int32_t kPaneTop = 90;
constexpr std::int32_t kPaneGap = 110;  // between the panes
constexpr std::int32_t kHeadingMiddle = 480;
constexpr std::int32_t kMenuMarkSize = 360;
constexpr std::int32_t kCsvIconLeft = 420;
constexpr std::int32_t kCsvIconSize = 240;
constexpr std::int32_t kSearchRowMiddle = 457;  // that of the item that heads the pane
constexpr std::int32_t kTextRowMiddle = 1050;
constexpr std::int32_t kListTop = 1410;
constexpr std::int32_t kFindSize = 465;
constexpr std::int32_t kControlGap = 180;
constexpr std::int32_t kText1Width = 4200;
constexpr Place kDonatePlace = {360, 6000, 930, 465};

// The margins of the layout's steps.
constexpr std::int32_t kListRightMargin = 345;
constexpr std::int32_t kListBottomMargin = 525;
constexpr std::int32_t kFindMargin = 25;
constexpr std::int32_t kPaneMargin = 50;
constexpr std::int32_t kImageMargin = 20;
constexpr std::int32_t kMenuBottomMargin = 150;
constexpr std::int32_t kCableMargin = 100;
constexpr std::int32_t kFocusMargin = 55;  // for the ring around the item with the keyboard

void SetWidth(Place& place, std::int32_t width) {
    if (width >= 0)
        place.width = width;
}

void SetHeight(Place& place, std::int32_t height) {
    if (height >= 0)
        place.height = height;
}

Place Centred(std::int32_t left, std::int32_t middle, const TwipSize& size) {
    return {left, middle - size.height / 2, size.width, size.height};
}

/// `inner` filling `outer` but for a margin.
void Fill(Place& inner, const Place& outer, std::int32_t margin) {
    inner.left = outer.left + margin;
    inner.top = outer.top + margin;
    SetWidth(inner, outer.width - 2 * margin);
    SetHeight(inner, outer.height - 2 * margin);
}

Place ItemPlace(const CommandItem& item, const TwipSize& natural) {
    return {item.left, item.top, std::max(kCommandItemWidth, natural.width),
            std::max(kCommandItemHeight, natural.height)};
}

/// How much wider the menu pane has to be than it was drawn.
std::int32_t MenuGrowth(const FormLayout& layout) {
    std::int32_t right = 0;
    for (std::size_t i = 0; i < kCommandItemCount; ++i)
        if (kCommandItems[i].pane == Pane::Menu)
            right = std::max(right, layout.cmdbuttons[i].Right());
    return std::max(0, right + kFocusMargin - (kMenuLeft + kMenuWidth - kPaneMargin));
}

void PlaceCsvIcons(FormLayout& layout) {
    auto* icon = layout.csvIcons.begin();
    for (std::size_t i = 0; i < kCommandItemCount; ++i) {
        if (kCommandItems[i].command != Command::OpenResults)
            continue;
        const Place& item = layout.cmdbuttons[i];
        *icon++ = Centred(kCsvIconLeft, item.top + item.height / 2, {kCsvIconSize, kCsvIconSize});
    }
}

void PlaceSearchControls(FormLayout& layout, const NaturalSizes& natural) {
    layout.cboSearchType = Centred(layout.cmdbuttons[kSearchModeItem].Right() + 2 * kControlGap,
                                   kSearchRowMiddle, natural.cboSearchType);
    layout.Label3 =
        Centred(layout.cboSearchType.Right() + 2 * kControlGap, kSearchRowMiddle, natural.Label3);
    layout.chkIgnoreCase =
        Centred(layout.Label3.Right() + kControlGap / 2, kSearchRowMiddle, natural.chkIgnoreCase);
    layout.txtSearchText = Centred(layout.lstSongs.left, kTextRowMiddle, natural.txtSearchText);
    layout.cmdFind = Centred(layout.lstSongs.left, kTextRowMiddle, {kFindSize, kFindSize});
}

void FrameMenu(FormLayout& layout, bool isDonateVisible) {
    const std::int32_t lowest =
        isDonateVisible ? layout.btnDonate.Bottom() : layout.cmdbuttons[kAboutItem].Bottom();
    SetHeight(layout.boxMenu, lowest - layout.boxMenu.top + kMenuBottomMargin);
    Fill(layout.imgMenu, layout.boxMenu, kPaneMargin);
    layout.cableBottom = (isDonateVisible ? layout.btnDonate.top : lowest) - kCableMargin;
    layout.Label5.left = layout.boxMenu.left + layout.boxMenu.width / 4;
    layout.Image1.left = layout.Label5.left + kImageMargin;  // over the blanks in front of "Menu"
}

void FrameList(FormLayout& layout) {
    Place& pane = layout.boxRightPane;
    pane.left = layout.lstSongs.left - kPaneMargin;
    SetWidth(pane, layout.lstSongs.width + 2 * kPaneMargin);
    SetHeight(pane, layout.lstSongs.Bottom() - pane.top + 2 * kPaneMargin);
    Fill(layout.imgRightPane, pane, kPaneMargin);
}

}  // namespace

FormLayout DesignLayout(const NaturalSizes& natural) {
    FormLayout layout;
    for (std::size_t i = 0; i < kCommandItemCount; ++i)
        layout.cmdbuttons[i] = ItemPlace(kCommandItems[i], natural.cmdbuttons[i]);
    const std::int32_t growth = MenuGrowth(layout);
    layout.boxMenu = {kMenuLeft, kPaneTop, kMenuWidth + growth, 0};
    layout.Label5 = Centred(0, kHeadingMiddle, natural.Label5);
    layout.Image1 = Centred(0, kHeadingMiddle, {kMenuMarkSize, kMenuMarkSize});
    layout.btnDonate = kDonatePlace;
    PlaceCsvIcons(layout);

    layout.boxRightPane = {0, kPaneTop, 0, 0};
    layout.lstSongs = {layout.boxMenu.Right() + kPaneGap + kPaneMargin, kListTop, 0, 0};
    layout.cmdbuttons[kSearchModeItem].left += growth;
    PlaceSearchControls(layout, natural);

    layout.Text1 = {0, 0, kText1Width, natural.statusBox.height};
    layout.Text2 = {kText1Width, 0, 0, natural.statusBox.height};
    return layout;
}

FormLayout LaidOut(FormLayout layout, const TwipSize& client, bool isDonateVisible) {
    Place& list = layout.lstSongs;
    SetWidth(list, client.width - list.left - kListRightMargin);
    SetHeight(list, client.height - list.top - kListBottomMargin);
    layout.cmdFind.left = list.Right() - layout.cmdFind.width - kFindMargin;
    SetWidth(layout.txtSearchText, list.width - layout.cmdFind.width - 3 * kFindMargin);
    layout.Text1.top = client.height - layout.Text1.height;
    layout.Text2.top = client.height - layout.Text2.height;
    SetWidth(layout.Text2, client.width - layout.Text1.width);
    FrameList(layout);
    FrameMenu(layout, isDonateVisible);
    return layout;
}

}  // namespace marlo
