#include <cstdlib>
#include <string>

#include <gtest/gtest.h>

#include "core/Settings.h"
#include "inventory/FileAssociation.h"
#include "tests/support/ApplicationTest.h"
#include "tests/support/System.h"

namespace marlo {
namespace {

using namespace std::string_literals;
using platform::kClassesRoot;
using platform::registry_type::kExpandString;

class FileAssociationTest : public test::ApplicationTest {
  protected:
    FileAssociationTest() { test::SetVariable("SystemRoot", "C:\\WINDOWS"); }

    void Associate(const std::string& command) {
        registry.SetText(kClassesRoot, ".csv", "", "csvfile");
        registry.SetText(kClassesRoot, "csvfile\\shell\\open\\command", "", command);
    }
    void AssociateExpandable(const std::string& command) {
        Associate("");
        std::vector<unsigned char> bytes(command.begin(), command.end());
        bytes.push_back(0);
        registry.Set(kClassesRoot, "csvfile\\shell\\open\\command", "", kExpandString, bytes);
    }

    std::string Program() { return GetAssociatedApp(application, ".csv"); }

    static std::string NoAssociationLine() { return LogLine("GetAssociatedApp: .csv", 0, ""); }
};

TEST_F(FileAssociationTest, TheProgramIsTheCommandWithoutQuotesAndArguments) {
    Associate("\"C:\\Program Files\\App\\app.exe\" \"%1\"");
    EXPECT_EQ(Program(), "C:\\Program Files\\App\\app.exe");
    EXPECT_EQ(Log(), "");
}

TEST_F(FileAssociationTest, AnExpandableCommandHasItsFirstVariableExpanded) {
    AssociateExpandable("%SystemRoot%\\system32\\NOTEPAD.EXE %1");
    EXPECT_EQ(Program(), "C:\\WINDOWS\\system32\\NOTEPAD.EXE");
}

TEST_F(FileAssociationTest, OnlyOneVariableIsExpandedAndTheTextBeforeItIsDropped) {
    AssociateExpandable("dropped %SystemRoot%\\%OTHER%\\a.exe");
    EXPECT_EQ(Program(), "C:\\WINDOWS\\%OTHER%\\a.exe");
}

TEST_F(FileAssociationTest, AnUnknownVariableIsEmpty) {
    test::ClearVariable("MARLO_UNKNOWN");
    AssociateExpandable("%MARLO_UNKNOWN%\\a.exe");
    EXPECT_EQ(Program(), "\\a.exe");
    EXPECT_EQ(Log(), "");
}

TEST_F(FileAssociationTest, AnExpandableCommandWithoutAVariableIsNoAssociation) {
    AssociateExpandable("C:\\a.exe");
    EXPECT_EQ(Program(), "");
    AssociateExpandable("C:\\a.exe %1");
    EXPECT_EQ(Program(), "");
    EXPECT_EQ(Log(), NoAssociationLine() + NoAssociationLine());
}

TEST_F(FileAssociationTest, AVariableInAPlainCommandStays) {
    Associate("%SystemRoot%\\a.exe");
    EXPECT_EQ(Program(), "%SystemRoot%\\a.exe");
}

TEST_F(FileAssociationTest, WithoutExeTheFirstThreeCharactersAreKept) {
    Associate("\"C:\\sheets.com\" %1");
    EXPECT_EQ(Program(), "C:");
    Associate("ab");
    EXPECT_EQ(Program(), "ab");
}

TEST_F(FileAssociationTest, TheFirstExeEndsTheProgramWhateverItsCase) {
    Associate("C:\\my.Exe.tools\\a.exe");
    EXPECT_EQ(Program(), "C:\\my.Exe");
}

TEST_F(FileAssociationTest, AnExtensionThatIsNotRegisteredIsEmptyAndLogged) {
    EXPECT_EQ(Program(), "");
    EXPECT_EQ(Log(), NoAssociationLine());
}

TEST_F(FileAssociationTest, ATypeWithoutACommandIsEmptyAndLogged) {
    registry.SetText(kClassesRoot, ".csv", "", "csvfile");
    EXPECT_EQ(Program(), "");
    registry.SetText(kClassesRoot, "csvfile\\shell\\open\\command", "", "");
    EXPECT_EQ(Program(), "");
    EXPECT_EQ(Log(), NoAssociationLine() + NoAssociationLine());
}

TEST_F(FileAssociationTest, AFailureIsLoggedOnce) {
    registry.Set(kClassesRoot, ".csv", "", platform::registry_type::kBinary, {1});
    EXPECT_EQ(Program(), "");
    EXPECT_EQ(Log(), LogLine("GetAssociatedApp: .csv", 13, "Type mismatch"));
}

TEST_F(FileAssociationTest, TheDesktopsOwnAssociationGoesBeforeTheRegistry) {
    Associate("C:\\a.exe");
    desktop.programs = {{".csv", "/usr/bin/sheets"}};
    EXPECT_EQ(Program(), "/usr/bin/sheets");
    EXPECT_EQ(GetAssociatedApp(application, ".txt"), "");
    EXPECT_EQ(Log(), LogLine("GetAssociatedApp: .txt", 0, ""));
}

TEST_F(FileAssociationTest, TheProgramForCsvFilesIsFilledInWhereNoneIsChosen) {
    desktop.programs = {{".csv", "/usr/bin/sheets"}};
    FillInCsvProgram(application);
    EXPECT_EQ(getSetting(application, 4), "/usr/bin/sheets");
    desktop.programs = {{".csv", "/usr/bin/other"}};
    FillInCsvProgram(application);
    EXPECT_EQ(getSetting(application, 4), "/usr/bin/sheets");
}

TEST_F(FileAssociationTest, SpacesAtTheEndsOfTheProgramAreNotReadBack) {
    Associate(" C:\\a.exe %1");
    FillInCsvProgram(application);
    EXPECT_EQ(getSetting(application, 4), "C:\\a.exe");
}

TEST_F(FileAssociationTest, TheProgramIsCutTo256Bytes) {
    desktop.programs = {{".csv", std::string(257, 'x')}};
    FillInCsvProgram(application);
    EXPECT_EQ(getSetting(application, 4), std::string(256, 'x'));
}

TEST_F(FileAssociationTest, WithoutAProgramForCsvFilesNoneIsFilledIn) {
    FillInCsvProgram(application);
    EXPECT_EQ(getSetting(application, 4), "");
}

}  // namespace
}  // namespace marlo
