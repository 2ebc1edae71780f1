#include <algorithm>
#include <windows.h>

#include <gtest/gtest.h>

#include "platform/Machine.h"
#include "tests/support/TempFolder.h"

namespace marlo::platform {
namespace {

/// The opacities of an icon's pixels.
std::vector<int> Opacities(const ShellIcon& icon) {
    std::vector<int> opacities;
    for (std::size_t i = 3; i < icon.pixels.size(); i += 4)
        opacities.push_back(icon.pixels[i]);
    return opacities;
}

TEST(ShellIconsTest, AProgramsSmallIconIsDrawn) {
    const auto icon = SystemDesktop().SmallIcon("C:\\windows\\notepad.exe");
    ASSERT_TRUE(icon);
    EXPECT_EQ(icon->width, GetSystemMetrics(SM_CXSMICON));
    EXPECT_EQ(icon->height, GetSystemMetrics(SM_CYSMICON));
    ASSERT_EQ(icon->pixels.size(), static_cast<std::size_t>(icon->width * icon->height) * 4);
    const std::vector<int> opacities = Opacities(*icon);
    EXPECT_EQ(*std::max_element(opacities.begin(), opacities.end()), 255);
    EXPECT_EQ(*std::min_element(opacities.begin(), opacities.end()), 0);
}

TEST(ShellIconsTest, WhatIsNotThereHasNone) {
    const test::TempFolder folder;
    EXPECT_FALSE(SystemDesktop().SmallIcon(folder.Path("gone.exe")));
    EXPECT_FALSE(SystemDesktop().SmallIcon(""));
}

}  // namespace
}  // namespace marlo::platform
