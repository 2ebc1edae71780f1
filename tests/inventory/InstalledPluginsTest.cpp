#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "core/RunTimeError.h"
#include "core/Settings.h"
#include "inventory/InstalledPlugins.h"
#include "tests/support/ApplicationTest.h"
#include "tests/support/HeldFiles.h"
#include "tests/support/System.h"
#include "tools/FilterWriter.h"

namespace marlo {
namespace {

using Texts = std::vector<std::string>;

const std::string kFile = "resultfiles/installedplugins.csv";

class RefreshPluginsTest : public test::ApplicationTest {
  protected:
    /// Writes a library into a folder of the settings. @return its line in the list.
    std::string AddLibrary(std::int16_t record, const std::string& file, const std::string& name) {
        const std::string base = "vst" + std::to_string(record);
        WriteSetting(application, record, folder.MakeFolder(base));
        const std::string path = folder.Write(base + "/" + file, "");
        return "\"VST\",\"" + name + "\",\"" + path + "\"\r\n";
    }

    void AddEffect(const std::string& name) {
        registry.SetText(platform::kClassesRoot, "CLSID\\{" + name + "}", "", name);
        registry.SetDword(platform::kClassesRoot, "CLSID\\{" + name + "}", "Merit", 0x00200000);
    }

    static std::string EffectLine(const std::string& name) {
        return "\"DirectX\",\"" + name + "\",\"<empty>\"\r\n";
    }

    InventorySummary Refresh() { return RefreshPlugins(application, window); }

    std::string List() const { return folder.Read(kFile); }
};

TEST_F(RefreshPluginsTest, AWholeRunDoesEverythingInOrder) {
    AddEffect("Echo");
    AddLibrary(50, "Reverb.dll", "Reverb");
    window.cancelTag = "Cancel";
    const auto summary = Refresh();
    EXPECT_EQ(summary.outcome, InventoryOutcome::Completed);
    EXPECT_EQ(summary.directX, 1U);
    EXPECT_EQ(summary.vst, 1U);
    EXPECT_EQ(
        window.events,
        (Texts{"DisableButtons", "Text1: Searching for installed DirectX Plugins...", "Repaint",
               "Text2: CLSID Root", "Repaint", "Events", "Text2: Direct Show", "Repaint", "Events",
               "Text2: Active Movie", "Repaint", "Events",
               "Text1: Searching for installed VST Plugins...", "Text2: " + folder.Path("vst50"),
               "Events", "Events", "EnableButtons", "ClearStatusBar"}));
    EXPECT_EQ(Log(), "");
}

TEST_F(RefreshPluginsTest, DirectXLinesComeFirstAndThenTheFoldersInTheirOrder) {
    AddEffect("Echo");
    const std::string second = AddLibrary(51, "A.dll", "A");
    const std::string third = AddLibrary(52, "sub/B.dll", "B");
    const std::string first = AddLibrary(50, "Z.dll", "Z");
    Refresh();
    EXPECT_EQ(List(), EffectLine("Echo") + first + second + third);
}

TEST_F(RefreshPluginsTest, TheFolderListEndsAtTheFirstEmptyRecord) {
    const std::string first = AddLibrary(50, "Z.dll", "Z");
    AddLibrary(52, "A.dll", "A");
    Refresh();
    EXPECT_EQ(List(), first);
}

TEST_F(RefreshPluginsTest, WithoutAFolderTheListHasTheDirectXLinesAndTheTimeIsWritten) {
    AddEffect("Echo");
    EXPECT_EQ(Refresh().outcome, InventoryOutcome::Completed);
    EXPECT_EQ(List(), EffectLine("Echo"));
    EXPECT_EQ(getSetting(application, 15), "11-15-2026 03:10:22");
}

TEST_F(RefreshPluginsTest, AFolderThatIsGoneGivesNoLineAndNoMessage) {
    WriteSetting(application, 50, folder.Path("gone"));
    const std::string second = AddLibrary(51, "A.dll", "A");
    EXPECT_EQ(Refresh().outcome, InventoryOutcome::Completed);
    EXPECT_EQ(List(), second);
    EXPECT_EQ(window.messages.size(), 0U);
}

TEST_F(RefreshPluginsTest, TheOldListIsReplaced) {
    folder.Write(kFile, "old");
    Refresh();
    EXPECT_EQ(List(), "");
}

TEST_F(RefreshPluginsTest, AFolderNamedTwiceIsScannedTwice) {
    const std::string line = AddLibrary(50, "A.dll", "A");
    WriteSetting(application, 51, folder.Path("vst50"));
    Refresh();
    EXPECT_EQ(List(), line + line);
}

TEST_F(RefreshPluginsTest, ACancelledRunKeepsWhatWasWrittenAndTheTime) {
    AddEffect("Echo");
    const std::string first = AddLibrary(50, "A.dll", "A");
    AddLibrary(51, "B.dll", "B");
    window.onEvents = [&] {
        if (window.text2 == folder.Path("vst51"))
            window.cancelTag = kCancelTag;
    };
    const auto summary = Refresh();
    EXPECT_EQ(summary.outcome, InventoryOutcome::Cancelled);
    EXPECT_EQ(summary.vst, 1U);
    EXPECT_EQ(List(), EffectLine("Echo") + first);
    EXPECT_EQ(getSetting(application, 15), "11-15-2026 03:10:22");
    ASSERT_EQ(window.messages.size(), 1U);
    EXPECT_EQ(window.messages[0].text, "Cancelled");
    EXPECT_EQ(window.messages[0].buttons, MessageButtons::Ok);
    EXPECT_EQ(window.messages[0].icon, MessageIcon::None);
    EXPECT_EQ(window.messages[0].title, "Marlo");
    EXPECT_EQ(window.Count("EnableButtons"), 1U);
}

TEST_F(RefreshPluginsTest, ACancelWithoutAFolderIsNotSeen) {
    AddEffect("Echo");
    window.onEvents = [&] { window.cancelTag = kCancelTag; };
    EXPECT_EQ(Refresh().outcome, InventoryOutcome::Completed);
    EXPECT_EQ(window.messages.size(), 0U);
}

TEST_F(RefreshPluginsTest, AListThatIsInUseIsAskedAboutAndCancelLeavesItAsItIs) {
    if (!test::HeldFiles::ArePossible())
        GTEST_SKIP() << test::kNoHeldFiles;
    const std::string list = folder.Write(kFile, "old");
    AddLibrary(50, "A.dll", "A");
    window.answers = {MessageAnswer::Ok, MessageAnswer::Cancel};
    InventorySummary summary;
    {
        const test::HeldFiles held({list});
        summary = Refresh();
    }
    EXPECT_EQ(summary.outcome, InventoryOutcome::NotStarted);
    EXPECT_EQ(List(), "old");
    EXPECT_EQ(window.messages.size(), 2U);
    EXPECT_EQ(getSetting(application, 15), "");
    EXPECT_EQ(window.events.back(), "ClearStatusBar");
    EXPECT_EQ(window.Count("EnableButtons"), 1U);
    EXPECT_TRUE(window.Phases().empty());
}

TEST_F(RefreshPluginsTest, AFailureIsLoggedAndToldAndWhatWasWrittenStays) {
    AddEffect("Echo");
    AddLibrary(50, "A.dll", "A");
    AddLibrary(51, "B.dll", "B");
    desktop.unreadable = {"B.dll"};
    EXPECT_EQ(Refresh().outcome, InventoryOutcome::Failed);
    EXPECT_EQ(List(),
              EffectLine("Echo") + "\"VST\",\"A\",\"" + folder.Path("vst50/A.dll") + "\"\r\n");
    EXPECT_EQ(Log(), LogLine("RefreshPlugins", 70, "Permission denied"));
    EXPECT_EQ(window.MessageTexts(), Texts{"An unexpected error occurred."});
    EXPECT_EQ(getSetting(application, 15), "");
    EXPECT_EQ(window.Count("EnableButtons"), 1U);
    EXPECT_EQ(window.events.back(), "ClearStatusBar");
}

TEST_F(RefreshPluginsTest, WhereverTheDiskIsFullTheListKeepsWhatWentOnIt) {
    if (!test::FileSizeLimit::IsPossible())
        GTEST_SKIP() << test::kNoFileSizeLimit;
    AddEffect("Echo");
    const std::string list = EffectLine("Echo") + AddLibrary(50, "A.dll", "A");
    WriteSetting(application, 15, "before");
    std::vector<int> numbers;
    application.onErrorLogged = [&](const ErrorEntry& entry) { numbers.push_back(entry.number); };
    for (std::size_t size = 0; size < list.size(); ++size) {
        folder.Write(kFile, "old");
        window.messages.clear();
        numbers.clear();
        InventorySummary summary;
        {
            const test::FileSizeLimit full(size);
            summary = Refresh();
        }
        EXPECT_EQ(summary.outcome, InventoryOutcome::Failed);
        EXPECT_EQ(List(), list.substr(0, size));
        EXPECT_FALSE(folder.Exists(kFile + ".new"));
        EXPECT_EQ(numbers, std::vector{61});
        EXPECT_EQ(window.MessageTexts(), Texts{"An unexpected error occurred."});
        EXPECT_EQ(getSetting(application, 15), "before");
    }
}

TEST_F(RefreshPluginsTest, AMessageThatCannotBeShownLeavesNothingLocked) {
    folder.MakeFolder(kFile);
    window.onMessage = [](const Message&) { throw RunTimeError(ErrorNumber::OutOfMemory); };
    EXPECT_EQ(Refresh().outcome, InventoryOutcome::Failed);
    EXPECT_EQ(window.Count("EnableButtons"), 1U);
    EXPECT_EQ(window.events.back(), "ClearStatusBar");
    EXPECT_EQ(Log(), LogLine("RefreshPlugins", 75, "Path/File access error") +
                         LogLine("RefreshPlugins", 7, "Out of memory"));
}

TEST_F(RefreshPluginsTest, TheFolderRecordsAreReadOneByOne) {
    AddLibrary(50, "A.dll", "A");
    AddLibrary(51, "B.dll", "B");
    const std::string first = folder.Path("vst50");
    const std::string other = folder.MakeFolder("other");
    const std::string library = folder.Write("other/C.dll", "");
    window.onEvents = [&] {
        if (window.text2 == first)
            WriteSetting(application, 51, other);
    };
    EXPECT_EQ(Refresh().outcome, InventoryOutcome::Completed);
    EXPECT_EQ(List(), "\"VST\",\"A\",\"" + folder.Path("vst50/A.dll") + "\"\r\n" +
                          "\"VST\",\"C\",\"" + library + "\"\r\n");
}

TEST_F(RefreshPluginsTest, AFolderInTheStagedListsPlaceDoesNotCostTheOldList) {
    folder.Write(kFile, "old");
    folder.MakeFolder(kFile + ".new");
    EXPECT_EQ(Refresh().outcome, InventoryOutcome::Failed);
    EXPECT_EQ(List(), "old");
    EXPECT_EQ(window.MessageTexts(), Texts{"An unexpected error occurred."});
    EXPECT_EQ(Log(), LogLine("RefreshPlugins", 75, "Path/File access error"));
    EXPECT_TRUE(window.Phases().empty()) << "nothing was looked for";
}

TEST_F(RefreshPluginsTest, AFolderInTheListsPlaceIsAFailureAndTheTimeStays) {
    folder.MakeFolder(kFile);
    WriteSetting(application, 15, "before");
    EXPECT_EQ(Refresh().outcome, InventoryOutcome::Failed);
    EXPECT_EQ(window.MessageTexts(), Texts{"An unexpected error occurred."});
    EXPECT_EQ(getSetting(application, 15), "before");
    EXPECT_FALSE(folder.Exists(kFile + ".new"));
    EXPECT_TRUE(window.Phases().empty()) << "it is known before anything is looked for";
}

TEST_F(RefreshPluginsTest, WithoutAResultFolderTheRunFails) {
    std::filesystem::remove(folder.Path("resultfiles"));
    EXPECT_EQ(Refresh().outcome, InventoryOutcome::Failed);
    EXPECT_EQ(window.MessageTexts(), Texts{"An unexpected error occurred."});
    EXPECT_FALSE(folder.Exists("resultfiles"));
}

TEST_F(RefreshPluginsTest, AResultFolderOfAnotherSpellingIsUsed) {
    std::filesystem::rename(folder.Path("resultfiles"), folder.Path("ResultFiles"));
    AddEffect("Echo");
    Refresh();
    EXPECT_EQ(folder.Read("ResultFiles/installedplugins.csv"), EffectLine("Echo"));
}

class PluginIsInstalledTest : public test::ApplicationTest {
  protected:
    void WriteList(const std::string& text) const { folder.Write(kFile, text); }
    bool Ask(const std::string& name) { return installed.PluginIsInstalled(name); }

    InstalledPlugins installed{application};
};

TEST_F(PluginIsInstalledTest, TheNameIsComparedExactlyWhateverTheType) {
    WriteList("\"DirectX\",\"Echo\",\"<empty>\"\r\n\"VST\",\"Reverb\",\"/vst/Reverb.dll\"\r\n");
    EXPECT_TRUE(Ask("Echo"));
    EXPECT_TRUE(Ask("Reverb"));
    EXPECT_FALSE(Ask("reverb"));
    EXPECT_FALSE(Ask("Reverb "));
    EXPECT_FALSE(Ask("Rev"));
    EXPECT_FALSE(Ask("VST"));
    EXPECT_FALSE(Ask(""));
    EXPECT_EQ(Log(), "");
}

TEST_F(PluginIsInstalledTest, ALibraryIsFoundForTheNameThatAProjectHas) {
    WriteSetting(application, 50, folder.MakeFolder("vst"));
    folder.Write("vst/Réverb.dll", "");
    RefreshPlugins(application, window);
    EXPECT_TRUE(Ask("R\xE9verb"));
    EXPECT_FALSE(Ask("Réverb"));
}

TEST_F(PluginIsInstalledTest, AMissingListIsLoggedAndFalseEachTime) {
    const std::string line = LogLine("PluginIsInstalled", 53, "File not found");
    EXPECT_FALSE(Ask("Echo"));
    EXPECT_EQ(Log(), line);
    EXPECT_FALSE(Ask("Echo"));
    EXPECT_EQ(Log(), line + line);
}

TEST_F(PluginIsInstalledTest, AListThatAppearsBetweenTwoQuestionsIsRead) {
    EXPECT_FALSE(Ask("Reverb"));
    WriteList("\"VST\",\"Reverb\",\"x\"\r\n");
    EXPECT_TRUE(Ask("Reverb"));
}

TEST_F(PluginIsInstalledTest, TheListIsReadOnceAndOnlyAsFarAsTheQuestionsNeed) {
    WriteList("\"VST\",\"Reverb\",\"x\"\r\nmalformed\r\n\"VST\",\"Delay\",\"x\"\r\n");
    EXPECT_TRUE(Ask("Reverb"));
    EXPECT_EQ(Log(), "") << "the malformed line is behind the answer";
    const std::string line = LogLine("SplitRecord: malformed 3", 5, "Invalid procedure call");
    EXPECT_TRUE(Ask("Delay"));
    EXPECT_FALSE(Ask("Echo"));
    EXPECT_TRUE(Ask("Delay"));
    EXPECT_EQ(Log(), line) << "each reading would have logged the malformed line";
}

TEST_F(PluginIsInstalledTest, ALaterReportSeesTheNewList) {
    WriteList("\"VST\",\"Reverb\",\"x\"\r\n");
    EXPECT_TRUE(Ask("Reverb"));
    WriteList("\"VST\",\"Echo\",\"x\"\r\n");
    InstalledPlugins later(application);
    EXPECT_TRUE(later.PluginIsInstalled("Echo"));
    EXPECT_FALSE(later.PluginIsInstalled("Reverb"));
}

TEST_F(PluginIsInstalledTest, AListThatIsAFolderIsLoggedAndFalse) {
    folder.MakeFolder(kFile);
    EXPECT_FALSE(Ask("Echo"));
    EXPECT_EQ(Log(), LogLine("PluginIsInstalled", 75, "Path/File access error"));
}

TEST_F(PluginIsInstalledTest, TheQuotesAndSpacesAroundANameInTheListDoNotCount) {
    WriteList("VST, \" Reverb \" ,x\r\n");
    EXPECT_TRUE(Ask("Reverb"));
}

TEST_F(PluginIsInstalledTest, ALineWithoutALocationCountsAndIsLogged) {
    WriteList("\"VST\",\"Reverb\"");
    EXPECT_TRUE(Ask("Reverb"));
    EXPECT_NE(Log(), "");
}

}  // namespace
}  // namespace marlo
