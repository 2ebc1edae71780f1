#include <windows.h>

#include <gtest/gtest.h>

#include "platform/SetProgramIcon.h"
#include "tests/support/TempFolder.h"

namespace marlo::platform {
namespace {

void AddNumber(std::string& bytes, unsigned number, int size) {
    for (int i = 0; i < size; ++i)
        bytes += static_cast<char>(number >> (8 * i) & 0xFF);
}

/// An icon file with one red picture.
std::string IconFile(unsigned side) {
    std::string picture;
    AddNumber(picture, 40, 4);
    AddNumber(picture, side, 4);
    AddNumber(picture, 2 * side, 4);  // with the mask
    AddNumber(picture, 1, 2);
    AddNumber(picture, 32, 2);
    picture.append(24, '\0');
    for (unsigned i = 0; i < side * side; ++i)
        AddNumber(picture, 0xFFFF0000, 4);
    picture.append(std::size_t{side} * ((side + 31) / 32 * 4), '\0');

    std::string file;
    AddNumber(file, 0, 2);
    AddNumber(file, 1, 2);
    AddNumber(file, 1, 2);
    AddNumber(file, side, 1);
    AddNumber(file, side, 1);
    AddNumber(file, 0, 2);
    AddNumber(file, 1, 2);
    AddNumber(file, 32, 2);
    AddNumber(file, static_cast<unsigned>(picture.size()), 4);
    AddNumber(file, static_cast<unsigned>(file.size()) + 4, 4);
    return file + picture;
}

class SetProgramIconTest : public testing::Test {
  protected:
    SetProgramIconTest() {
        last = MakeWindow(nullptr);
        owner = MakeWindow(last);
        window = MakeWindow(owner);
    }
    ~SetProgramIconTest() override { DestroyWindow(last); }  // and what it owns

    static HWND MakeWindow(HWND owner) {
        return CreateWindowA("STATIC", "", WS_OVERLAPPEDWINDOW, 0, 0, 100, 100, owner, nullptr,
                             nullptr, nullptr);
    }

    static HICON IconOf(HWND window, WPARAM kind) {
        return reinterpret_cast<HICON>(SendMessageA(window, WM_GETICON, kind, 0));
    }

    /// The width of a window's icon in dots; 0 without one.
    static int WidthOf(HWND window, WPARAM kind) {
        ICONINFO icon{};
        BITMAP picture{};
        if (GetIconInfo(IconOf(window, kind), &icon) == FALSE)
            return 0;
        GetObjectA(icon.hbmColor, sizeof picture, &picture);
        DeleteObject(icon.hbmColor);
        DeleteObject(icon.hbmMask);
        return picture.bmWidth;
    }

    test::TempFolder folder;
    std::string file = folder.Write("icon.ico", IconFile(48));
    HWND last = nullptr;
    HWND owner = nullptr;
    HWND window = nullptr;
};

TEST_F(SetProgramIconTest, TheWindowGetsBothIconsInTheSystemsSizes) {
    SetProgramIcon(window, file, false);
    EXPECT_EQ(WidthOf(window, ICON_BIG), GetSystemMetrics(SM_CXICON));
    EXPECT_EQ(WidthOf(window, ICON_SMALL), GetSystemMetrics(SM_CXSMICON));
    EXPECT_EQ(IconOf(owner, ICON_BIG), nullptr);
    EXPECT_EQ(IconOf(last, ICON_BIG), nullptr);
}

TEST_F(SetProgramIconTest, TheLastOwnerGetsThemToo) {
    SetProgramIcon(window, file, true);
    for (const WPARAM kind : {ICON_BIG, ICON_SMALL}) {
        EXPECT_NE(IconOf(window, kind), nullptr);
        EXPECT_EQ(IconOf(last, kind), IconOf(window, kind));
        EXPECT_EQ(IconOf(owner, kind), nullptr) << "it is in the middle of the chain";
    }
}

TEST_F(SetProgramIconTest, AWindowWithoutAnOwnerGetsThemToo) {
    SetProgramIcon(last, file, true);
    EXPECT_NE(IconOf(last, ICON_BIG), nullptr);
    EXPECT_NE(IconOf(last, ICON_SMALL), nullptr);
}

TEST_F(SetProgramIconTest, AMissingFileGivesNoIcon) {
    SetProgramIcon(window, folder.Path("gone.ico"), true);
    EXPECT_EQ(IconOf(window, ICON_BIG), nullptr);
    EXPECT_EQ(IconOf(window, ICON_SMALL), nullptr);
}

}  // namespace
}  // namespace marlo::platform
