#include <gtest/gtest.h>

#include "tests/gui/ListGuiTest.h"
#include "ui/CommandItems.h"

namespace marlo {
namespace {

/// The toolkit's own list, which fails a check of its own at a key when it has no room for a row.
class LowListTest : public test::ListGuiTest {};

TEST_F(LowListTest, KeysDoNothingInAListWithoutRoomForARow) {
    folder.Write("resultfiles/installedplugins.csv",
                 "\"VST\",\"Alpha\",\"/a.dll\"\r\n\"VST\",\"Beta\",\"/b.dll\"\r\n");
    for (const char* file : {"results.csv", "tln.csv", "fln.csv"})
        folder.Write(std::string("resultfiles/") + file, "");
    Open();
    Click(Item(kInstalledReportItem));  // the installed plug-ins
    ClickRow(0);
    Window().SetClientSize(Window().GetClientSize().x, 150);
    ASSERT_TRUE(test::RunEventsUntil([&] { return List().GetCountPerPage() == 0; }));
    for (const int key : {WXK_PAGEDOWN, WXK_END, WXK_DOWN})
        Press(key);
    EXPECT_EQ(List().ActivePosition(), 1U);
    Press(WXK_TAB);
    EXPECT_NE(FocusedName(), "lstSongs");
}

}  // namespace
}  // namespace marlo
