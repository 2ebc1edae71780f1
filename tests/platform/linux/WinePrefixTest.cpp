#include <cstdlib>
#include <filesystem>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "platform/Machine.h"
#include "platform/linux/WinePrefix.h"
#include "tests/support/System.h"
#include "tests/support/TempFolder.h"

namespace marlo::platform {
namespace {

using namespace std::string_literals;
using namespace registry_result;
using Names = std::vector<std::string>;

constexpr const char* kHeader =
    "WINE REGISTRY Version 2\n;; All keys relative to REGISTRY\\\\X\n\n";
constexpr std::size_t kHeaderLength = std::string_view("WINE REGISTRY Version 2\n").size();
constexpr const char* k64Bit = "#arch=win64\n\n";
constexpr const char* k32Bit = "#arch=win32\n\n";

class WinePrefixTest : public testing::Test {
  protected:
    void WriteMachine(const std::string& keys, const char* arch = k64Bit) const {
        folder.Write("system.reg", kHeader + std::string(arch) + keys);
    }
    void WriteUser(const std::string& keys, const char* arch = k64Bit) const {
        folder.Write("user.reg", kHeader + std::string(arch) + keys);
    }

    /// The bytes of a value; "(no key)" or "(none)" without one.
    std::string Value(RegistryKey hive, const std::string& path, const std::string& name = "") {
        RegistryKey key = 0;
        if (prefix.OpenKey(hive, path, key) != kSuccess)
            return "(no key)";
        std::int32_t type = 0;
        std::vector<unsigned char> buffer(1024);
        std::uint32_t length = 0;
        const auto result = prefix.QueryValue(key, name, type, buffer, length);
        prefix.CloseKey(key);
        return result == kSuccess ? std::string(buffer.begin(), buffer.begin() + length) : "(none)";
    }

    /// The names below a key; "(no key)" without it.
    Names Subkeys(RegistryKey hive, const std::string& path) {
        RegistryKey key = 0;
        if (prefix.OpenKey(hive, path, key) != kSuccess)
            return {"(no key)"};
        std::uint32_t count = 0;
        std::uint32_t longest = 0;
        EXPECT_EQ(prefix.QueryInfo(key, count, longest), kSuccess);
        Names names;
        for (std::uint32_t i = 0; i < count; ++i) {
            std::string buffer(longest + 1, ' ');
            std::uint32_t length = 0;
            EXPECT_EQ(prefix.EnumerateKey(key, i, buffer, length), kSuccess);
            names.push_back(buffer.substr(0, length));
        }
        prefix.CloseKey(key);
        return names;
    }

    test::TempFolder folder;
    WinePrefix prefix{folder.Path()};
};

TEST_F(WinePrefixTest, KeysAndValuesAreFoundWithoutRegardToCase) {
    WriteMachine(
        "[Software\\\\VST] 1795254019\n#time=1dd799c52a5e65e\n"
        "\"VSTPluginsPath\"=\"C:\\\\Vst\"\n");
    EXPECT_EQ(Value(kLocalMachine, "SOFTWARE\\vst", "vstpluginspath"), "C:\\Vst\0"s);
    EXPECT_EQ(Value(kLocalMachine, "Software\\VST\\", "VSTPluginsPath"), "C:\\Vst\0"s);
    EXPECT_EQ(Value(kLocalMachine, "Software\\VST", "other"), "(none)");
    EXPECT_EQ(Value(kLocalMachine, "Software\\VS"), "(no key)");
    EXPECT_EQ(Value(kCurrentUser, "Software\\VST"), "(no key)");
}

TEST_F(WinePrefixTest, AKeyThatOnlyHasKeysBelowItIsThere) {
    WriteMachine("[A\\\\B\\\\C] 1\n@=\"c\"\n");
    EXPECT_EQ(Subkeys(kLocalMachine, "A"), (Names{"B"}));
    EXPECT_EQ(Subkeys(kLocalMachine, "A\\B\\C"), Names{});
    EXPECT_EQ(Value(kLocalMachine, "A\\B"), "(none)");
}

TEST_F(WinePrefixTest, SubkeysAreListedOnceInTheRegistrysOrder) {
    WriteMachine(
        "[K\\\\b] 1\n@=\"\"\n[K] 1\n@=\"\"\n[K\\\\A\\\\x] 1\n@=\"\"\n[K\\\\a\\\\y] 1\n@=\"\"\n"
        "[K\\\\\\x00e9] 1\n@=\"\"\n[K\\\\z z] 1\n@=\"\"\n[K2] 1\n@=\"\"\n"
        "[K\\\\FXB] 1\n@=\"\"\n[K\\\\FX_A] 1\n@=\"\"\n");
    EXPECT_EQ(Subkeys(kLocalMachine, "K"), (Names{"A", "b", "FX_A", "FXB", "z z", "\xE9"}));
}

TEST_F(WinePrefixTest, AKeyThatTheFileHasTwiceIsOne) {
    WriteMachine("[K] 1\n\"a\"=\"1\"\n\"b\"=\"1\"\n[J] 1\n[k] 1\n\"b\"=\"2\"\n");
    EXPECT_EQ(Value(kLocalMachine, "K", "a"), "1\0"s);
    EXPECT_EQ(Value(kLocalMachine, "K", "b"), "2\0"s);
}

TEST_F(WinePrefixTest, NamesThatAreNotInTheAnsiPageAreUtf8) {
    WriteMachine("[K\\\\R\\xe9verb] 1\n@=\"R\\xe9verb\"\n[K\\\\\\x66f2] 1\n@=\"\\x66f2\"\n");
    EXPECT_EQ(Subkeys(kLocalMachine, "K"), (Names{"R\xE9verb", "曲"}));
    EXPECT_EQ(Value(kLocalMachine, "K\\R\xE9verb"), "R\xE9verb\0"s);
    EXPECT_EQ(Value(kLocalMachine, "K\\曲"), "曲\0"s);
}

TEST_F(WinePrefixTest, ClassesAreThoseOfTheUserAndThenTheMachine) {
    WriteUser("[Software\\\\Classes\\\\CLSID\\\\{b}] 1\n@=\"user's b\"\n");
    WriteMachine(
        "[Software\\\\Classes\\\\CLSID\\\\{A}] 1\n@=\"machine's a\"\n"
        "[Software\\\\Classes\\\\CLSID\\\\{B}] 1\n@=\"machine's b\"\n\"x\"=\"only here\"\n"
        "[Software\\\\Classes\\\\CLSID\\\\{C}] 1\n@=\"machine's c\"\n");
    EXPECT_EQ(Subkeys(kClassesRoot, "CLSID"), (Names{"{A}", "{b}", "{C}"}));
    EXPECT_EQ(Value(kClassesRoot, "CLSID\\{B}"), "user's b\0"s);
    EXPECT_EQ(Value(kClassesRoot, "CLSID\\{B}", "x"), "only here\0"s);
    EXPECT_EQ(Value(kClassesRoot, "CLSID\\{A}"), "machine's a\0"s);
}

TEST_F(WinePrefixTest, AKeyIsLookedForInThe32BitViewFirst) {
    WriteMachine(
        "[Software\\\\Classes\\\\CLSID\\\\{64}] 1\n@=\"\"\n"
        "[Software\\\\Classes\\\\Wow6432Node\\\\CLSID\\\\{32}] 1\n@=\"\"\n"
        "[Software\\\\Classes\\\\.csv] 1\n@=\"csvfile\"\n"
        "[Software\\\\Wow6432Node\\\\VST] 1\n@=\"32\"\n[Software\\\\VST] 1\n@=\"64\"\n"
        "[Software\\\\Other] 1\n@=\"64 only\"\n"
        "[System\\\\Wow6432Node] 1\n@=\"no view\"\n[System] 1\n@=\"one view\"\n");
    EXPECT_EQ(Subkeys(kClassesRoot, "CLSID"), (Names{"{32}"}));
    EXPECT_EQ(Value(kClassesRoot, "CLSID\\{64}"), "\0"s) << "absent from the 32-bit view";
    EXPECT_EQ(Value(kClassesRoot, ".csv"), "csvfile\0"s);
    EXPECT_EQ(Value(kLocalMachine, "software\\vst"), "32\0"s);
    EXPECT_EQ(Value(kLocalMachine, "Software\\Other"), "64 only\0"s);
    EXPECT_EQ(Value(kLocalMachine, "System"), "one view\0"s);
}

TEST_F(WinePrefixTest, TheUsersKeysHaveA32BitViewToo) {
    WriteUser("[Software\\\\Wow6432Node\\\\K] 1\n@=\"32\"\n[Software\\\\K] 1\n@=\"64\"\n");
    EXPECT_EQ(Value(kCurrentUser, "Software\\K"), "32\0"s);
}

TEST_F(WinePrefixTest, APrefixOf32BitWindowsHasButOneView) {
    WriteMachine(
        "[Software\\\\Wow6432Node\\\\VST] 1\n@=\"stray\"\n[Software\\\\VST] 1\n@=\"real\"\n",
        k32Bit);
    EXPECT_EQ(Value(kLocalMachine, "Software\\VST"), "real\0"s);
}

TEST_F(WinePrefixTest, ABareKeyOfThe32BitViewIsAbsentWhereThe64BitViewHasIt) {
    WriteMachine(
        "[Software\\\\Classes\\\\Wow6432Node\\\\CLSID] 1\n#time=1\n\n"
        "[Software\\\\Classes\\\\CLSID\\\\{64}] 1\n@=\"\"\n"
        "[Software\\\\Wow6432Node\\\\Bare] 1\n#time=1\n");
    EXPECT_EQ(Subkeys(kClassesRoot, "CLSID"), (Names{"{64}"}));
    EXPECT_EQ(Subkeys(kLocalMachine, "Software\\Bare"), Names{}) << "there all the same";
}

/// A key that stands for `target`.
std::string Link(const std::string& path, const std::string& target) {
    std::string text = "[" + path + "] 1\n#time=1\n#link\n\"SymbolicLinkValue\"=hex(6):";
    constexpr std::string_view digits = "0123456789abcdef";
    for (std::size_t i = 0; i < target.size(); ++i) {
        const auto byte = static_cast<unsigned char>(target[i]);
        text += i == 0 ? "" : ",";
        text += std::string{digits[byte / 16], digits[byte % 16]} + ",00";
    }
    return text + "\n\n";
}

TEST_F(WinePrefixTest, AKeyThatStandsForAnotherLeadsThere) {
    WriteMachine(
        Link("Software\\\\Wow6432Node\\\\Policies", "\\Registry\\Machine\\Software\\Policies") +
        "[Software\\\\Policies\\\\Sub] 1\n@=\"found\"\n" +
        Link("ToUser", "\\REGISTRY\\USER\\S-1-5-21-0\\Software"));
    WriteUser("[Software\\\\K] 1\n@=\"the user's\"\n");
    EXPECT_EQ(Value(kLocalMachine, "Software\\Wow6432Node\\policies\\Sub"), "found\0"s);
    EXPECT_EQ(Value(kLocalMachine, "Software\\Policies\\Sub"), "found\0"s);
    EXPECT_EQ(Value(kLocalMachine, "ToUser\\K"), "the user's\0"s);
}

TEST_F(WinePrefixTest, ACircleOfKeysOrALinkToNowhereIsNoKey) {
    WriteMachine(Link("A", "\\Registry\\Machine\\B") + Link("B", "\\Registry\\Machine\\A") +
                 Link("C", "\\Device\\x") + Link("D", "x") +
                 Link("E", "\\Registry\\Machine\\Gone"));
    for (const char* path : {"A", "B", "C", "E"})
        EXPECT_EQ(Value(kLocalMachine, path), "(no key)") << path;
    EXPECT_EQ(Value(kLocalMachine, "D"), "(none)") << "a malformed link is a key";
}

TEST_F(WinePrefixTest, LinesAfterAMalformedKeyBelongToNoKey) {
    WriteMachine("[A] 1\n@=\"a\"\n[cut short\n@=\"lost\"\n[B] 1\n@=\"b\"\n");
    EXPECT_EQ(Value(kLocalMachine, "A"), "a\0"s);
    EXPECT_EQ(Value(kLocalMachine, "B"), "b\0"s);
}

TEST_F(WinePrefixTest, AFileWithLineEndsOfWindowsOrWithoutALastOneIsRead) {
    folder.Write("system.reg",
                 "WINE REGISTRY Version 2\r\n\r\n#arch=win64\r\n\r\n[K] 1\r\n@=\"x\"");
    EXPECT_EQ(Value(kLocalMachine, "K"), "x\0"s);
}

TEST_F(WinePrefixTest, AFileOfAnotherFormatIsEmpty) {
    folder.Write("system.reg", "WINE REGISTRY Version 3\n\n[K] 1\n@=\"x\"\n");
    EXPECT_EQ(Value(kLocalMachine, "K"), "(no key)");
    EXPECT_FALSE(prefix.Problem());
}

TEST_F(WinePrefixTest, WithoutFilesTheRegistryIsEmptyAndThatIsNoProblem) {
    EXPECT_EQ(Value(kClassesRoot, "CLSID"), "(no key)");
    EXPECT_EQ(Subkeys(kLocalMachine, ""), Names{});
    EXPECT_FALSE(prefix.Problem());
    WinePrefix nowhere("");
    RegistryKey key = 0;
    EXPECT_EQ(nowhere.OpenKey(kLocalMachine, "Software", key), kFileNotFound);
}

TEST_F(WinePrefixTest, AFileThatCannotBeReadIsAProblem) {
    folder.MakeFolder("user.reg");
    EXPECT_EQ(prefix.Problem(), std::errc::is_a_directory);
    EXPECT_EQ(Value(kCurrentUser, "Software"), "(no key)");
}

TEST_F(WinePrefixTest, TheFilesAreReadOnceAndNotBeforeTheyAreAskedFor) {
    WriteMachine("[K] 1\n@=\"first\"\n");
    EXPECT_EQ(Value(kLocalMachine, "K"), "first\0"s);
    WriteMachine("[K] 1\n@=\"second\"\n");
    EXPECT_EQ(Value(kLocalMachine, "K"), "first\0"s);
}

TEST_F(WinePrefixTest, AKeyIsOpenedBelowAnother) {
    WriteMachine("[A\\\\B] 1\n@=\"b\"\n");
    RegistryKey parent = 0;
    ASSERT_EQ(prefix.OpenKey(kLocalMachine, "A", parent), kSuccess);
    EXPECT_EQ(Value(parent, "B"), "b\0"s);
    EXPECT_EQ(Value(parent, "C"), "(no key)");
    prefix.CloseKey(parent);
    RegistryKey key = 0;
    EXPECT_EQ(prefix.OpenKey(parent, "B", key), kInvalidHandle);
}

TEST_F(WinePrefixTest, AValueThatDoesNotFitTellsItsTypeAndLength) {
    WriteMachine("[K] 1\n\"v\"=\"four\"\n");
    RegistryKey key = 0;
    ASSERT_EQ(prefix.OpenKey(kLocalMachine, "K", key), kSuccess);
    std::int32_t type = 0;
    std::uint32_t length = 4;
    std::vector<unsigned char> buffer(4);
    EXPECT_EQ(prefix.QueryValue(key, "v", type, buffer, length), kMoreData);
    EXPECT_EQ(type, registry_type::kString);
    EXPECT_EQ(length, 5U);
}

TEST_F(WinePrefixTest, AMissingValueLeavesTypeAndLengthAsTheyWere) {
    WriteMachine("[K] 1\n\"v\"=\"x\"\n");
    RegistryKey key = 0;
    ASSERT_EQ(prefix.OpenKey(kLocalMachine, "K", key), kSuccess);
    std::int32_t type = 77;
    std::uint32_t length = 1024;
    EXPECT_EQ(prefix.QueryValue(key, "missing", type, {}, length), kFileNotFound);
    EXPECT_EQ(type, 77);
    EXPECT_EQ(length, 1024U);
}

TEST_F(WinePrefixTest, ListingBeyondTheEndOrIntoTooSmallABufferFails) {
    WriteMachine("[K\\\\Sub] 1\n@=\"x\"\n");
    RegistryKey key = 0;
    ASSERT_EQ(prefix.OpenKey(kLocalMachine, "K", key), kSuccess);
    std::string buffer(4, ' ');
    std::uint32_t length = 0;
    EXPECT_EQ(prefix.EnumerateKey(key, 0, buffer, length), kSuccess);
    EXPECT_EQ(buffer, "Sub\0"s);
    EXPECT_EQ(prefix.EnumerateKey(key, 1, buffer, length), kNoMoreItems);
    buffer.resize(3);
    EXPECT_EQ(prefix.EnumerateKey(key, 0, buffer, length), kMoreData);
}

TEST_F(WinePrefixTest, APathOfBytesBeyondAsciiIsReadAsItIs) {
    const std::string name(10'000, '\xE9');
    WriteMachine("[K\\\\" + name + "] 1\n@=\"x\"\n[" + name + "]");
    EXPECT_EQ(Subkeys(kLocalMachine, "K"), (Names{name}));
    EXPECT_EQ(Value(kLocalMachine, "K\\" + name), "x\0"s);
    EXPECT_EQ(Value(kLocalMachine, name), "(none)");
}

TEST_F(WinePrefixTest, AKeyThatIsMarkedAsALinkOftenIsOne) {
    std::string marks;
    for (int i = 0; i < 100'000; ++i)
        marks += "#link\n";
    const std::string link = Link("L", "\\Registry\\Machine\\K");
    WriteMachine(link.substr(0, link.find("#link")) + marks + link.substr(link.find("#link")) +
                 "[K] 1\n@=\"x\"\n");
    EXPECT_EQ(Value(kLocalMachine, "L"), "x\0"s);
}

TEST_F(WinePrefixTest, ALinkThatLeadsTooDeepIsNone) {
    std::string target = "\\Registry\\Machine";
    for (int i = 0; i < 200'000; ++i)
        target += "\\a";
    WriteMachine(Link("L", target));
    EXPECT_EQ(Value(kLocalMachine, "L"), "(none)");
}

TEST_F(WinePrefixTest, BrokenFilesAreReadWithoutHarm) {
    const std::string whole =
        kHeader + std::string(k64Bit) + Link("Software\\\\L", "\\Registry\\Machine\\Software\\K") +
        "[Software\\\\K] 1\n#time=1\n@=\"R\\xe9verb\\xd83c\"\n\"Merit\"=dword:00200000\n"
        "\"FilterData\"=hex:02,00,00,\\\n  00,01\n\"a\"=str(7):\"x\\0y\\0\"\n"
        "\"b\"=hex(1):41,00,00,00\n\n[Software\\\\K\\\\Sub\\[\\x66f2\\]] 1\n@=\"\"\n";
    std::mt19937 random(1163560222);
    const auto below = [&](std::size_t bound) { return random() % bound; };
    std::size_t found = 0;
    for (int round = 0; round < 3000; ++round) {
        std::string text = whole;
        for (std::size_t changes = below(4); changes > 0; --changes)
            text[kHeaderLength + below(text.size() - kHeaderLength)] =
                "\\\"\n[]=x0,:#@ \xE9"[below(14)];
        if (below(3) == 0)
            text.resize(kHeaderLength + below(text.size() - kHeaderLength));
        folder.Write("system.reg", text);
        prefix = WinePrefix(folder.Path());
        for (const char* path : {"Software", "Software\\K", "Software\\L"}) {
            Subkeys(kLocalMachine, path);
            for (const char* name : {"", "Merit", "FilterData", "a", "b"})
                found += Value(kLocalMachine, path, name).starts_with('(') ? 0 : 1;
        }
    }
    EXPECT_GT(found, 10'000U) << "most values survive a few changes";
}

class LocalPathTest : public WinePrefixTest {
  protected:
    LocalPathTest() {
        folder.MakeFolder("drive_c/Program Files/VstPlugins/Réverb");
        folder.MakeFolder("dosdevices");
        std::filesystem::create_directory_symlink("../drive_c", folder.Path("dosdevices/c:"));
        std::filesystem::create_directory_symlink("/", folder.Path("dosdevices/z:"));
    }

    std::string InDrive(const std::string& name) const {
        return std::filesystem::canonical(folder.Path("drive_c/" + name)).string();
    }
};

TEST_F(LocalPathTest, AWindowsPathLeadsThroughItsDriveWithoutRegardToCase) {
    const std::string expected = InDrive("Program Files/VstPlugins");
    EXPECT_EQ(prefix.LocalPath("C:\\program files\\VSTPLUGINS"), expected);
    EXPECT_EQ(prefix.LocalPath("c:/Program Files\\\\VstPlugins\\"), expected);
    EXPECT_EQ(prefix.LocalPath("C:\\"), InDrive(""));
    EXPECT_EQ(prefix.LocalPath("Z:\\"), "/");
}

TEST_F(LocalPathTest, SpacesAtTheEndsCountForNothing) {
    EXPECT_EQ(prefix.LocalPath(" C:\\Program Files\\VstPlugins  "),
              InDrive("Program Files/VstPlugins"));
    EXPECT_EQ(prefix.LocalPath("  "), "");
}

TEST_F(LocalPathTest, ANameInTheAnsiPageOrInUtf8IsMatched) {
    const std::string expected = InDrive("Program Files/VstPlugins/Réverb");
    EXPECT_EQ(prefix.LocalPath("C:\\Program Files\\VstPlugins\\R\xC9VERB"), expected);
    EXPECT_EQ(prefix.LocalPath("C:\\Program Files\\VstPlugins\\Réverb"), expected);
}

TEST_F(LocalPathTest, TheExactNameGoesBeforeOneOfAnotherCase) {
    folder.MakeFolder("drive_c/vst");
    folder.MakeFolder("drive_c/VST");
    EXPECT_EQ(prefix.LocalPath("C:\\vst"), InDrive("vst"));
    EXPECT_EQ(prefix.LocalPath("C:\\Vst"), InDrive("VST")) << "the first by its bytes";
}

TEST_F(LocalPathTest, AFileIsFoundWithoutRegardToCaseToo) {
    folder.Write("drive_c/Program Files/Sheets.EXE", "");
    const std::string expected = InDrive("Program Files/Sheets.EXE");
    EXPECT_EQ(prefix.LocalPath("C:\\PROGRAM FILES\\sheets.exe"), expected);
    EXPECT_EQ(prefix.LocalPath("C:\\Program Files\\sheets.exe\\below"), "");
}

TEST_F(LocalPathTest, WhatLeadsNowhereIsEmpty) {
    for (const auto& path : {"C:\\gone"s, "Q:\\"s, "\\\\server\\share"s, "relative"s, ""s, "C"s,
                             "C:\\Program\0 Files"s})
        EXPECT_EQ(prefix.LocalPath(path), "") << path;
}

TEST(UsersPrefixTest, ThePrefixIsTheEnvironmentsElseInTheHomeFolder) {
    test::SetVariable("WINEPREFIX", "/prefixes/studio");
    EXPECT_EQ(WinePrefix::UsersFolder(), "/prefixes/studio");
    test::SetVariable("WINEPREFIX", "");
    test::SetVariable("HOME", "/home/someone");
    EXPECT_EQ(WinePrefix::UsersFolder(), "/home/someone/.wine");
    test::ClearVariable("WINEPREFIX");
    test::ClearVariable("HOME");
    EXPECT_EQ(WinePrefix::UsersFolder(), "");
}

TEST_F(WinePrefixTest, AnExplicitPrefixHasToBeThere) {
    std::error_code error;
    EXPECT_EQ(OpenWinePrefix(folder.Path(), error), nullptr);
    EXPECT_EQ(error, std::errc::no_such_file_or_directory);
    WriteMachine("");
    EXPECT_NE(OpenWinePrefix(folder.Path(), error), nullptr);
    EXPECT_FALSE(error);
}

}  // namespace
}  // namespace marlo::platform
