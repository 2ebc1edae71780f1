#include <exception>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "core/RunTimeError.h"
#include "dialogs/GetIcons.h"
#include "tests/dialogs/DialogFakes.h"

namespace marlo {
namespace {

using Events = std::vector<std::string>;

class GetIconsTest : public test::ApplicationTest {
  protected:
    GetIconsTest() { desktop.icons["/bin/sheet"] = {.name = "spreadsheet"}; }

    test::FakePictureBox box;
    test::FakePictureBox second;
};

TEST_F(GetIconsTest, AnIconTakesThePlaceOfWhatTheBoxShowed) {
    DrawSmallIcon(application, "/bin/sheet", box);
    EXPECT_EQ(box.events, (Events{"Clear", "Draw spreadsheet"}));
    EXPECT_EQ(Log(), "");
}

TEST_F(GetIconsTest, ABoxStaysAsItIsForAFileWithoutAnIcon) {
    DrawSmallIcon(application, "/bin/other", box);
    EXPECT_TRUE(box.events.empty());
    EXPECT_EQ(Log(), "");
}

TEST_F(GetIconsTest, AFailureOfTheDesktopLeavesTheBoxAsItIs) {
    desktop.shellFailure = std::make_exception_ptr(RunTimeError(ErrorNumber::DeviceIo));
    DrawSmallIcon(application, "/bin/sheet", box);
    EXPECT_TRUE(box.events.empty());
    EXPECT_EQ(Log(), LogLine("FileBrowser:StripTerminator", 57, "Device I/O error"));
}

TEST_F(GetIconsTest, AFailureOfTheBoxIsLogged) {
    box.onClear = [] { throw RunTimeError(ErrorNumber::DeviceIo); };
    DrawSmallIcon(application, "/bin/sheet", box);
    EXPECT_EQ(Log(), LogLine("FileBrowser:StripTerminator", 57, "Device I/O error"));
}

TEST_F(GetIconsTest, BothBoxesOfTheMainWindowShowTheIconTheFirstOneFirst) {
    bool wasFirstDrawn = false;
    second.onClear = [&] { wasFirstDrawn = box.events == Events{"Clear", "Draw spreadsheet"}; };
    LoadCsvAppIcons(application, "/bin/sheet", box, second);
    EXPECT_TRUE(wasFirstDrawn);
    EXPECT_EQ(second.events, (Events{"Clear", "Draw spreadsheet"}));
    EXPECT_EQ(Log(), "");
}

TEST_F(GetIconsTest, ABoxThatFailsLeavesTheOtherOneItsIcon) {
    box.onClear = [] { throw RunTimeError(ErrorNumber::DeviceIo); };
    LoadCsvAppIcons(application, "/bin/sheet", box, second);
    EXPECT_EQ(second.events, (Events{"Clear", "Draw spreadsheet"}));
    EXPECT_EQ(Log(), LogLine("FileBrowser:StripTerminator", 57, "Device I/O error"));
}

}  // namespace
}  // namespace marlo
