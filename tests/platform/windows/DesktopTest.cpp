#include <chrono>
#include <filesystem>
#include <string>
#include <thread>
#include <windows.h>

#include <gtest/gtest.h>

#include "platform/Machine.h"
#include "tests/support/TempFolder.h"

namespace marlo::platform {
namespace {

class DesktopTest : public testing::Test {
  protected:
    std::string Describe(const std::string& path, FileKind kind = FileKind::Unknown) {
        return SystemDesktop().FileTypeDescription(path, kind, error);
    }

    /// What a program has written into a file, once it has.
    std::string TakeNote() const {
        for (int i = 0; i < 1000 && (!folder.Exists("note") || folder.Read("note").empty()); ++i)
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        return folder.Read("note");
    }

    test::TempFolder folder;
    std::error_code error;
};

TEST_F(DesktopTest, AFileHasTheTypeThatIsRegisteredForItsExtension) {
    for (const char* name : {"a.cpr", "b.CPR", ".cpr", "d.txt.cpr", "曲 🎹/e.cpr"})
        EXPECT_EQ(Describe(folder.Write(name, "")), "CubaseSX Project") << name;
    for (const char* name : {"a.dll", "b.DLL", "Réverb.dll"})
        EXPECT_EQ(Describe(folder.Write(name, "")), "Application Extension") << name;
    for (const char* name : {"a.cprx", "cpr", "a.cpr.bak"})
        EXPECT_NE(Describe(folder.Write(name, "")), "CubaseSX Project") << name;
}

TEST_F(DesktopTest, AFolderOrNothingIsOfNoType) {
    EXPECT_EQ(Describe(folder.MakeFolder("folder.cpr")), "");
    EXPECT_EQ(Describe(folder.Path("gone.cpr")), "");
    EXPECT_FALSE(error);
    EXPECT_EQ(Describe(folder.Path("gone.cpr"), FileKind::Regular), "CubaseSX Project")
        << "it is not looked at";
}

TEST_F(DesktopTest, AShortPathOpensTheSameFileAndOfNothingThereIsNone) {
    const std::string path = folder.Write("a folder/a long name.csv", "the file");
    const std::string shortPath = SystemDesktop().ShortPath(path);
    ASSERT_NE(shortPath, "");
    EXPECT_EQ(shortPath.find(' '), std::string::npos) << shortPath;
    EXPECT_TRUE(std::filesystem::equivalent(shortPath, path));
    EXPECT_EQ(SystemDesktop().ShortPath(folder.Path("gone.csv")), "");
}

TEST_F(DesktopTest, TheRegistryHoldsThePrograms) {
    EXPECT_EQ(SystemDesktop().ProgramForExtension(".csv"), std::nullopt);
}

class ShellTest : public DesktopTest {
  protected:
    static int Ask(const ShellRequest& request) { return SystemDesktop().ShellExecute(request); }
};

/// A batch file that copies the file it is given, to "note".
class CopierTest : public ShellTest {
  protected:
    std::string CopyOf(const std::string& path) {
        const std::string program =
            folder.Write("copier.cmd", "@copy %1 \"" + folder.Path("note") + "\"\r\n");
        EXPECT_GT(Ask({.file = program, .parameters = path, .isProgram = true}), kLastShellFailure);
        return TakeNote();
    }
};

TEST_F(CopierTest, AProgramIsStartedWithItsArgument) {
    EXPECT_EQ(CopyOf(folder.Write("source", "hello")), "hello");
}

TEST_F(CopierTest, APathWithBlanksAndCommasIsOneArgument) {
    EXPECT_EQ(CopyOf(folder.Write("my files/a, b;c =d.csv", "hello")), "hello");
}

TEST_F(ShellTest, ABackslashAtTheEndOfAnArgumentDoesNotHideItsQuote) {
    const std::string program =
        folder.Write("teller.cmd", "@echo %1>\"" + folder.Path("note") + "\"\r\n");
    EXPECT_GT(Ask({.file = program, .parameters = "C:\\my files\\", .isProgram = true}),
              kLastShellFailure);
    EXPECT_EQ(TakeNote(), "\"C:\\my files\\\\\"\r\n");
}

TEST_F(ShellTest, AProjectWithAnyNameIsOpenedByTheProgramForProjects) {
    const std::string command = "cmd.exe /c copy \"%1\" \"" + folder.Path("note") + "\"";
    const char* const key = "CubaseSX.Project\\shell\\open\\command";
    ASSERT_EQ(RegSetValueA(HKEY_CLASSES_ROOT, key, REG_SZ, command.c_str(), 0), ERROR_SUCCESS);
    EXPECT_GT(Ask({.file = folder.Write("Проекты/曲 🎹/a, b.cpr", "the project")}),
              kLastShellFailure);
    EXPECT_EQ(TakeNote(), "the project");
    RegDeleteKeyA(HKEY_CLASSES_ROOT, key);
}

TEST_F(ShellTest, WhatIsNotThereIsNotFound) {
    EXPECT_EQ(Ask({.file = folder.Path("gone.cpr")}), ERROR_FILE_NOT_FOUND);
    EXPECT_EQ(Ask({.file = folder.Path("gone.exe"), .isProgram = true}), ERROR_FILE_NOT_FOUND);
    EXPECT_EQ(Ask({.file = folder.Write("a.cpr", "") + std::string("\0x", 2)}),
              ERROR_FILE_NOT_FOUND);
}

TEST_F(ShellTest, ADocumentWithoutAProgramHasNoAssociation) {
    EXPECT_EQ(Ask({.file = folder.Write("a.unheard-of", "")}), SE_ERR_NOASSOC);
}

}  // namespace
}  // namespace marlo::platform
