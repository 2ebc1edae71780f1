#include "core/Settings.h"
#include "tests/gui/OptionsGuiTest.h"
#include "tests/gui/windows/NativeDialog.h"

namespace marlo {
namespace {

using ProgramPickerTest = test::OptionsGuiTest;

TEST_F(ProgramPickerTest, OffersPrograms) {
    InOptions([&] {
        SelectTab(1);
        InProgramPicker([&](test::Dialog& picker) {
            EXPECT_EQ(dynamic_cast<test::NativeDialog&>(picker).Kinds(),
                      std::vector<std::string>{"Program files (*.exe)"});
            Press(WXK_ESCAPE);
        });
        Press(WXK_ESCAPE);
    });
}

TEST_F(ProgramPickerTest, RefusesAProgramThatDoesNotExist) {
    InOptions([&] {
        SelectTab(1);
        InProgramPicker([&](test::Dialog& picker) {
            dialogs.Handle([&](test::Dialog& /*complaint*/) { Press(WXK_RETURN); });
            picker.EnterPath(folder.Path("nowhere.exe"));
            Press(WXK_RETURN);
            EXPECT_TRUE(picker.IsOpen());
            Press(WXK_ESCAPE);
        });
        Click(Part("cmdOk"));
    });
    EXPECT_EQ(getSetting(application, setting::kCsvProgram), "/bin/sheets");
}

}  // namespace
}  // namespace marlo
