#include "tests/gui/ListGuiTest.h"

#include <wx/menu.h>

namespace marlo::test {

Texts ListGuiTest::Headers() {
    Texts headers;
    for (int column = 0; column < List().GetColumnCount(); ++column) {
        wxListItem header;
        header.SetMask(wxLIST_MASK_TEXT);
        List().GetColumn(column, header);
        headers.push_back(header.GetText().utf8_string());
    }
    return headers;
}

std::vector<Texts> ListGuiTest::Cells() {
    std::vector<Texts> rows(static_cast<std::size_t>(List().GetItemCount()));
    for (std::size_t row = 0; row < rows.size(); ++row)
        for (int column = 0; column < List().GetColumnCount(); ++column)
            rows[row].push_back(List().GetItemText(static_cast<long>(row), column).utf8_string());
    return rows;
}

Texts ListGuiTest::Column(int column) {
    Texts texts;
    for (const Texts& row : Cells())
        texts.push_back(row.at(static_cast<std::size_t>(column)));
    return texts;
}

void ListGuiTest::ClickHeader(int column) {
    // Here and there in turn, so that two clicks are no double click.
    const int aside = List().GetColumnWidth(column) / 4;
    isClickOnTheLeft_ = !isClickOnTheLeft_;
    ClickAt(List(),
            MiddleOfHeader(List(), column) + wxPoint(isClickOnTheLeft_ ? -aside : aside, 0));
}

void ListGuiTest::ClickRow(long row, int button) {
    ClickAt(RowsOf(List()), PointInRow(List(), row), button);
}

void ListGuiTest::RightClickBelowTheRows() {
    ClickAt(RowsOf(List()), PointBelowTheRows(), wxMOUSE_BTN_RIGHT);
}

void ListGuiTest::DoubleClickHeader(int column) {
    DoubleClickAt(List(), MiddleOfHeader(List(), column));
}

void ListGuiTest::DoubleClickRow(long row) {
    DoubleClickAt(RowsOf(List()), PointInRow(List(), row));
}

void ListGuiTest::DoubleClickBelowTheRows() {
    DoubleClickAt(RowsOf(List()), PointBelowTheRows());
}

void ListGuiTest::InMenu(const std::function<void()>& open,
                         const std::function<void(wxMenu&)>& handler) {
    int count = 0;
    const auto onOpen = [&](wxMenuEvent& event) {
        event.Skip();
        ++count;
        List().CallAfter([menu = event.GetMenu(), handler] { handler(*menu); });
    };
    List().Bind(wxEVT_MENU_OPEN, onOpen);
    open();
    if (IsWindowOpen())
        List().Unbind(wxEVT_MENU_OPEN, onOpen);
    EXPECT_EQ(count, 1) << "menus have opened";
}

void ListGuiTest::ChooseInMenu(int steps, const std::function<void()>& open) {
    InMenu(open, [this, steps](wxMenu& /*menu*/) {
        for (int i = 0; i < steps; ++i)
            SendKey(WXK_DOWN);
        SendKey(WXK_RETURN);
    });
}

wxPoint ListGuiTest::PointBelowTheRows() {
    const wxSize size = RowsOf(List()).GetClientSize();
    return {size.x / 2, size.y - 20};
}

}  // namespace marlo::test
