#include "tests/gui/ListRows.h"

#include "tests/gui/Display.h"

namespace marlo::test {

namespace {

constexpr int kLeftInRow = 20;

}  // namespace

wxWindow& RowsOf(gui::LedgerList& list) {
    const wxWindowList& parts = list.GetChildren();
    return parts.empty() ? list : *parts.GetFirst()->GetData();
}

wxRect PlaceOfRow(gui::LedgerList& list, long row) {
    wxRect place;
    list.GetItemRect(row, place);
    return {RowsOf(list).ScreenToClient(list.ClientToScreen(place.GetTopLeft())), place.GetSize()};
}

wxPoint PointInRow(gui::LedgerList& list, long row) {
    const wxRect place = PlaceOfRow(list, row);
    return place.GetTopLeft() + wxPoint(kLeftInRow, place.height / 2);
}

wxPoint MiddleOfHeader(gui::LedgerList& list, int column) {
    int left = 0;
    for (int i = 0; i < column; ++i)
        left += list.GetColumnWidth(i);
    wxRect row;
    list.GetItemRect(list.GetTopItem(), row);
    return {left + list.GetColumnWidth(column) / 2, row.y / 2};
}

wxColour TextColour(gui::LedgerList& list, long row) {
    const wxImage picture = PictureOf(RowsOf(list), PlaceOfRow(list, row));
    wxColour darkest = *wxWHITE;
    for (int x = 0; x < list.GetColumnWidth(0); ++x)
        for (int y = 0; y < picture.GetHeight(); ++y) {
            const wxColour colour(picture.GetRed(x, y), picture.GetGreen(x, y),
                                  picture.GetBlue(x, y));
            if (colour.GetLuminance() < darkest.GetLuminance())
                darkest = colour;
        }
    return darkest;
}

wxColour BandColour(gui::LedgerList& list, long row) {
    const wxRect place = PlaceOfRow(list, row);
    const wxPoint besideTheText(list.GetColumnWidth(0) - 2, place.height / 2);
    return ColourAt(RowsOf(list), place.GetTopLeft() + besideTheText);
}

}  // namespace marlo::test
