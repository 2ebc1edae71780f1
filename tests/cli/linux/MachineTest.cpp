// What the programs make of a Linux machine: its Wine prefixes, its desktop, its displays.

#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include "tests/cli/CliTest.h"
#include "tests/support/System.h"

namespace marlo {
namespace {

constexpr const char* kPrefixWithEffect =
    "WINE REGISTRY Version 2\n"
    ";; All keys relative to REGISTRY\\\\Machine\n\n#arch=win64\n\n"
    "[Software\\\\Classes\\\\Wow6432Node\\\\CLSID\\\\{1}] 1\n@=\"DX Echo\"\n"
    "\"Merit\"=dword:00200000\n\n"
    "[Software\\\\Wow6432Node\\\\VST] 1\n\"VSTPluginsPath\"=\"C:\\\\VST\"\n";

class WinePrefixCommandTest : public test::CliTest {
  protected:
    std::string List() const { return Result("installedplugins.csv"); }

    /// Makes a Wine prefix with an effect, and a library in the folder that it names.
    void MakePrefix(const std::string& name) const {
        folder.Write(name + "/system.reg", kPrefixWithEffect);
        folder.MakeFolder(name + "/dosdevices");
        folder.Write(name + "/drive_c/vst/Réverb.dll", "");
        test::MakeLink("../drive_c", folder.Path(name + "/dosdevices/c:"));
    }

    std::string PrefixList(const std::string& name) const {
        return "\"DirectX\",\"DX Echo\",\"<empty>\"\r\n\"VST\",\"R\xE9verb\",\"" +
               std::filesystem::canonical(folder.Path(name)).string() +
               "/drive_c/vst/Réverb.dll\"\r\n";
    }
};

TEST_F(WinePrefixCommandTest, TheUsersPrefixIsListedWithTheFolderThatItNames) {
    MakePrefix("prefix");
    const auto result = Marlo({"installed"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.out, "1 DirectX plug-in, 1 VST plug-in.\n");
    EXPECT_EQ(result.error, "");
    EXPECT_EQ(List(), PrefixList("prefix"));
}

TEST_F(WinePrefixCommandTest, AnotherPrefixMayBeNamed) {
    MakePrefix("other");
    const auto result = Marlo({"installed", "--wine-prefix", folder.Path("other")});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(List(), PrefixList("other"));
}

TEST_F(WinePrefixCommandTest, APrefixThatIsNoneIsSaidAndTheOldListStays) {
    folder.Write("app/resultfiles/installedplugins.csv", "old");
    const auto result = Marlo({"installed", "--wine-prefix", folder.MakeFolder("none")});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.error, "marlo-cli: installed: " + folder.Path("none") +
                                ": no Wine prefix that can be read (No such file or directory)\n");
    EXPECT_EQ(List(), "old");
}

TEST_F(WinePrefixCommandTest, AUsersPrefixThatCannotBeReadIsSaidAndTheFoldersAreListed) {
    folder.MakeFolder("prefix/system.reg");
    folder.Write("vst/Echo.dll", "");
    Marlo({"folders", "add", folder.Path("vst")});
    const auto result = Marlo({"installed"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.error,
              "marlo-cli: installed: the Wine prefix cannot be read: Is a directory\n");
    EXPECT_EQ(result.out, "0 DirectX plug-ins, 1 VST plug-in.\n");
}

class DesktopCommandTest : public test::CliTest {};

TEST_F(DesktopCommandTest, WithoutAProgramTheDesktopsOwnIsTaken) {
    const std::string program = folder.Write("data/sheets", "#!/bin/sh\n");
    std::filesystem::permissions(program, std::filesystem::perms::owner_all);
    folder.Write("data/mime/globs2", "50:text/csv:*.csv\n");
    folder.Write("data/applications/sheets.desktop",
                 "[Desktop Entry]\nType=Application\nName=Sheets\nExec=" + program +
                     " %F\nMimeType=text/csv;\n");
    folder.Write("data/mimeapps.list", "[Default Applications]\ntext/csv=sheets.desktop\n");
    EXPECT_NE(Marlo({"options"}).out.find("csv-program:    " + program + "\n"), std::string::npos);
    EXPECT_EQ(Setting(4), program);
}

TEST_F(DesktopCommandTest, APathWithASpaceAtItsEndCannotBeKept) {
    EXPECT_EQ(Marlo({"folders", "add", folder.MakeFolder("space ")}).exitCode, 1);
    EXPECT_EQ(Marlo({"options", "--csv-program", folder.Write("program ", "")}).exitCode, 1);
}

class WindowMachineTest : public test::CliTest {
  protected:
    WindowMachineTest() {
        test::ClearVariable("DISPLAY");
        test::ClearVariable("WAYLAND_DISPLAY");
    }
};

TEST_F(WindowMachineTest, AWinePrefixMayBeNamed) {
    EXPECT_NE(MarloWindow({"--help"}).out.find("--wine-prefix DIR"), std::string::npos);
}

TEST_F(WindowMachineTest, AMissingWinePrefixIsSaid) {
    const auto result =
        MarloWindow({"--app-folder", folder.Path("app"), "--wine-prefix", folder.Path("gone")});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.error.find("marlo: " + folder.Path("gone") + ": no Wine prefix"), 0U)
        << result.error;
}

TEST_F(WindowMachineTest, AMissingDisplayIsSaid) {
    const auto result = MarloWindow({"--app-folder", folder.Path("app")});
    EXPECT_NE(result.exitCode, 0);
    EXPECT_NE(result.error, "");
}

}  // namespace
}  // namespace marlo
