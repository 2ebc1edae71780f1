#include <vector>

#include "app/gui/Theme.h"
#include "core/Settings.h"
#include "tests/gui/ListGuiTest.h"

namespace marlo {
namespace {

using test::Texts;

class WindowReportTest : public test::ListGuiTest {
  protected:
    WindowReportTest() {
        const auto write = [&](const std::string& name, const std::string& text) {
            folder.Write("resultfiles/" + name, text);
        };
        write("results.csv", "");
        write("fln.csv", "");
        write("tln.csv",
              "\"Reverb\",\"VST\",\"On\"\r\n\"Gone\",\"VST\",\"Off\"\r\n"
              "\"Chorus\",\"DirectX\",\"On\"\r\n");
        write("installedplugins.csv",
              "\"VST\",\"Reverb\",\"C:\\vst\\Reverb.dll\"\r\n"
              "\"VST\",\"Delay\",\"C:\\vst\\Delay.dll\"\r\n"
              "\"DirectX\",\"Chorus\",\"{1}\"\r\n");
        Open();
    }
};

TEST_F(WindowReportTest, UnusedPluginsAreThoseThatNoProjectUses) {
    Click(Item(kUnusedReportItem));
    EXPECT_EQ(Headers(), (Texts{"Unused Plugins", "Type", "Path"}));
    EXPECT_EQ(Cells(), (std::vector<Texts>{{"Delay", "VST", "C:\\vst\\Delay.dll"}}));
}

TEST_F(WindowReportTest, UsedPluginsTellWhichAreNotInstalled) {
    Click(Item(kUsedReportItem));
    EXPECT_EQ(Headers(), (Texts{"Used Plugins", "Type", "Path", "Status"}));
    EXPECT_EQ(Cells(), (std::vector<Texts>{{"Chorus", "DirectX", "", "On"},
                                           {"Gone", "VST", "!Not Installed!", "Off"},
                                           {"Reverb", "VST", "C:\\vst\\Reverb.dll", "On"}}));
}

TEST_F(WindowReportTest, InstalledPluginsAreAllOfThem) {
    Click(Item(kInstalledReportItem));
    EXPECT_EQ(Headers(), (Texts{"Installed Plugins", "Type", "Path"}));
    EXPECT_EQ(Cells(), (std::vector<Texts>{{"Chorus", "DirectX", ""},
                                           {"Delay", "VST", "C:\\vst\\Delay.dll"},
                                           {"Reverb", "VST", "C:\\vst\\Reverb.dll"}}));
}

TEST_F(WindowReportTest, UninstalledPluginsAreThoseThatProjectsLack) {
    Click(Item(kUninstalledReportItem));
    EXPECT_EQ(Headers(), (Texts{"Uninstalled Plugins", "Type", "Status"}));
    EXPECT_EQ(Cells(), (std::vector<Texts>{{"Gone", "VST", "Off"}}));
}

TEST_F(WindowReportTest, AReportTakesThePlaceOfTheOneBefore) {
    Click(Item(kUsedReportItem));
    Click(Item(kUninstalledReportItem));
    EXPECT_EQ(Headers(), (Texts{"Uninstalled Plugins", "Type", "Status"}));
    EXPECT_EQ(List().GetItemCount(), 1);
    EXPECT_TRUE(List().IsShown());
}

TEST_F(WindowReportTest, WhatTheOptionsIgnoreHasNoColumn) {
    WriteSetting(application, setting::kIgnoreDirectX, "1");
    WriteSetting(application, setting::kIgnoreOff, "1");
    Click(Item(kUsedReportItem));
    EXPECT_EQ(Headers(), (Texts{"Used Plugins", "Path"}));
}

TEST_F(WindowReportTest, AReportWithoutPluginsSaysSo) {
    folder.Write("resultfiles/tln.csv", "");
    Click(Item(kUsedReportItem));
    EXPECT_EQ(List().GetItemCount(), 1);
    EXPECT_EQ(List().GetItemText(0), "No plugins found");
}

TEST_F(WindowReportTest, ANameThatIsNotAsciiIsShownAsItIs) {
    folder.Write("resultfiles/tln.csv", "\"H\xC3\xA4ll\",\"VST\",\"On\"\r\n");
    Click(Item(kUsedReportItem));
    EXPECT_EQ(List().GetItemText(0), wxString::FromUTF8("H\xC3\xA4ll"));
}

TEST_F(WindowReportTest, APluginThatIsNotInstalledStandsInGrey) {
    Click(Item(kUsedReportItem));
    const wxColour grey = gui::CurrentTheme().greyedRow;
    ASSERT_GT(grey.GetLuminance(), gui::kTextOnLight.GetLuminance() + 0.1);
    const auto isNear = [](const wxColour& a, const wxColour& b) {
        return std::abs(a.GetLuminance() - b.GetLuminance()) < 0.05;
    };
    EXPECT_TRUE(isNear(test::TextColour(List(), 0), gui::kTextOnLight));
    EXPECT_TRUE(isNear(test::TextColour(List(), 1), grey));
    EXPECT_TRUE(isNear(test::TextColour(List(), 2), gui::kTextOnLight));
}

}  // namespace
}  // namespace marlo
