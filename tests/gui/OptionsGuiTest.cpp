#include "tests/gui/OptionsGuiTest.h"

namespace marlo::test {

void OptionsGuiTest::InOptions(const std::function<void()>& body) {
    dialogs.Handle([this, body](Dialog& dialog) {
        dialog_ = &dialog.Window();
        body();
    });
    Click(Item(kOptionsItem));
}

void OptionsGuiTest::SelectTab(int tab) {
    wxPoint point(0, 10);
    while (Tabs().HitTest(point) != tab && point.x < Tabs().GetSize().x)
        ++point.x;
    ClickAt(Tabs(), point + wxPoint(10, 0));
    ASSERT_EQ(Tabs().GetSelection(), tab);
}

void OptionsGuiTest::InProgramPicker(const std::function<void(Dialog&)>& handler) {
    dialogs.Handle(handler);
    Click(Part("cmdTab2Search"));
}

}  // namespace marlo::test
