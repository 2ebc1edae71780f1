#include <wx/filedlg.h>

#include "tests/gui/OptionsGuiTest.h"

namespace marlo {
namespace {

using ProgramPickerTest = test::OptionsGuiTest;

TEST_F(ProgramPickerTest, OffersProgramsThatExistAndAllOtherFiles) {
    InOptions([&] {
        SelectTab(1);
        InProgramPicker([&](test::Dialog& dialog) {
            const auto& picker = dynamic_cast<wxFileDialog&>(dialog.Window());
            EXPECT_EQ(picker.GetWildcard(), "Program files (*.exe)|*.exe|All Files|*");
            EXPECT_TRUE(picker.HasFlag(wxFD_OPEN));
            EXPECT_TRUE(picker.HasFlag(wxFD_FILE_MUST_EXIST));
            Press(WXK_ESCAPE);
        });
        Press(WXK_ESCAPE);
    });
}

}  // namespace
}  // namespace marlo
