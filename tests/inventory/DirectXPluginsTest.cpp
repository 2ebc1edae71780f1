#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "inventory/DirectXPlugins.h"
#include "inventory/GetInstalledPlugins.h"
#include "tests/support/ApplicationTest.h"
#include "tools/FilterWriter.h"

namespace marlo {
namespace {

using platform::kClassesRoot;
using platform::kCurrentUser;
using platform::registry_type::kBinary;
using tools::AudioPin;

constexpr std::uint32_t kEffectMerit = 0x00200000;
const std::string kInstances = "CLSID\\{083863F1-70DE-11d0-BD40-00A0C911CE86}\\Instance";
const std::string kDevenum =
    "Software\\Microsoft\\ActiveMovie\\devenum\\{083863F1-70DE-11D0-BD40-00A0C911CE86}";

class DirectXPluginsTest : public test::ApplicationTest {
  protected:
    void AddClass(const std::string& id, const std::string& name) {
        registry.SetText(kClassesRoot, "CLSID\\" + id, "", name);
        registry.SetDword(kClassesRoot, "CLSID\\" + id, "Merit", kEffectMerit);
    }

    void AddFilter(platform::RegistryKey hive, const std::string& path, const std::string& name,
                   const std::vector<unsigned char>& data = tools::EffectFilterData()) {
        registry.SetText(hive, path, "FriendlyName", name);
        registry.Set(hive, path, "FilterData", kBinary, data);
    }
    void AddInstance(const std::string& name,
                     const std::vector<unsigned char>& data = tools::EffectFilterData()) {
        AddFilter(kClassesRoot, kInstances + "\\{" + name + "}", name, data);
    }

    /// The names written, each with ";" behind it. The lines have to be well formed.
    std::string Names() {
        std::error_code error;
        {
            LineWriter output(platform::File::OpenForAppending(folder.Path("list.csv"), error));
            GetDirectXPlugins(application, window, output);
        }
        const std::string before = "\"DirectX\",\"";
        const std::string after = "\",\"<empty>\"\r\n";
        std::string names;
        std::string text = folder.Read("list.csv");
        while (!text.empty()) {
            const std::size_t end = text.find(after);
            if (!text.starts_with(before) || end == std::string::npos)
                return "malformed: " + text;
            names += text.substr(before.size(), end - before.size()) + ";";
            text.erase(0, end + after.size());
        }
        std::filesystem::remove(folder.Path("list.csv"));
        return names;
    }
};

TEST_F(DirectXPluginsTest, TheThreePlacesAreReadInOrder) {
    AddFilter(kCurrentUser, kDevenum + "\\a", "Third");
    AddInstance("Second");
    AddClass("{1}", "First");
    EXPECT_EQ(Names(), "First;Second;Third;");
    EXPECT_EQ(window.events, (std::vector<std::string>{
                                 "Text2: CLSID Root", "Repaint", "Events", "Text2: Direct Show",
                                 "Repaint", "Events", "Text2: Active Movie", "Repaint", "Events"}));
    EXPECT_EQ(Log(), "");
    EXPECT_EQ(registry.OpenKeyCount(), 0U);
}

TEST_F(DirectXPluginsTest, WithoutAnyOfTheKeysNothingIsWrittenOrLogged) {
    EXPECT_EQ(Names(), "");
    EXPECT_EQ(Log(), "");
}

TEST_F(DirectXPluginsTest, AFilterInTwoPlacesIsWrittenOnce) {
    AddClass("{1}", "Echo");
    AddInstance("Echo");
    AddFilter(kCurrentUser, kDevenum + "\\a", "Echo");
    EXPECT_EQ(Names(), "Echo;");
}

TEST_F(DirectXPluginsTest, NamesThatDifferInCaseAreBothWritten) {
    AddInstance("Echo 1");
    AddFilter(kCurrentUser, kDevenum + "\\a", "ECHO 1");
    EXPECT_EQ(Names(), "Echo 1;ECHO 1;");
}

TEST_F(DirectXPluginsTest, AClassWithoutAMeritIsNotListedAndTheWalkGoesOn) {
    registry.SetText(kClassesRoot, "CLSID\\{1}", "", "No merit");
    registry.AddKey(kClassesRoot, "CLSID\\{2}");
    AddClass("{3}", "Echo");
    EXPECT_EQ(Names(), "Echo;");
    EXPECT_EQ(Log(), "");
}

TEST_F(DirectXPluginsTest, AClassOfAnotherMeritIsNotListed) {
    AddClass("{1}", "Player");
    registry.SetDword(kClassesRoot, "CLSID\\{1}", "Merit", 0x00600000);
    EXPECT_EQ(Names(), "");
}

TEST_F(DirectXPluginsTest, AClassOfTheMeritWithoutADefaultValueIsNotListed) {
    registry.SetDword(kClassesRoot, "CLSID\\{1}", "Merit", kEffectMerit);
    AddClass("{2}", "Echo");
    EXPECT_EQ(Names(), "Echo;");
    EXPECT_EQ(Log(), "");
}

TEST_F(DirectXPluginsTest, AClassNeedsNoFilterData) {
    AddClass("{1}", "Echo");
    EXPECT_EQ(Names(), "Echo;");
}

TEST_F(DirectXPluginsTest, AMeritOfAnotherTypeEndsTheWalkAndTheNextOneGoesOn) {
    AddClass("{1}", "Before");
    AddClass("{2}", "Strange");
    registry.SetText(kClassesRoot, "CLSID\\{2}", "Merit", "2097152");
    AddClass("{3}", "After");
    AddInstance("Chorus");
    EXPECT_EQ(Names(), "Before;Chorus;");
    EXPECT_EQ(Log(), LogLine("GetCLSIDPlugins", 13, "Type mismatch"));
    EXPECT_EQ(registry.OpenKeyCount(), 1U) << "the walk's key stays open";
}

TEST_F(DirectXPluginsTest, AMeritOfAnyOtherTypeEndsTheWalk) {
    for (const std::int32_t type : {0, 2, 3, 7, 11}) {
        AddClass("{1}", "Strange");
        registry.Set(kClassesRoot, "CLSID\\{1}", "Merit", type, {0, 0, 0x20, 0, 0, 0, 0, 0});
        AddClass("{2}", "After");
        EXPECT_EQ(Names(), "") << type;
    }
}

TEST_F(DirectXPluginsTest, ADefaultValueThatIsANumberIsItsDigits) {
    AddClass("{1}", "");
    registry.SetDword(kClassesRoot, "CLSID\\{1}", "", 42);
    EXPECT_EQ(Names(), "42;");
}

TEST_F(DirectXPluginsTest, OnlyCompatibleFiltersAreWritten) {
    AddInstance("Video", tools::FilterData({AudioPin(), {{tools::kVideo, tools::kNoGuid}}}));
    AddInstance("Pins 2 and 3",
                tools::FilterData({{{tools::kVideo, tools::kNoGuid}}, AudioPin(), AudioPin()}));
    AddInstance("Any subtype", tools::FilterData({AudioPin(), {{tools::kAudio, tools::kNoGuid}}}));
    EXPECT_EQ(Names(), "Any subtype;");
    EXPECT_EQ(Log(), "");
}

TEST_F(DirectXPluginsTest, AFilterWithShortFilterDataIsNeverWritten) {
    AddInstance("Short", std::vector<unsigned char>(28));
    AddFilter(kCurrentUser, kDevenum + "\\a", "Short too", std::vector<unsigned char>(1));
    registry.SetText(kClassesRoot, kInstances + "\\{none}", "FriendlyName", "None");
    EXPECT_EQ(Names(), "");
    EXPECT_EQ(Log(), "");
}

TEST_F(DirectXPluginsTest, AFailureAtOneFilterCostsThatFilterOnly) {
    auto broken = tools::EffectFilterData();
    broken[8] = 0;
    AddInstance("Broken", broken);
    AddInstance("Echo");
    EXPECT_EQ(Names(), "Echo;");
    EXPECT_EQ(Log(), LogLine("GetPluginTypes", 9, "Subscript out of range") +
                         LogLine("IsCubaseCompatible", 13, "Type mismatch"));
}

TEST_F(DirectXPluginsTest, ExcludedNamesAreNotWrittenButRealPlayersIs) {
    for (const char* name :
         {"ACM Wrapper", "G.711 Codec", "SMPTEGenerator", "mixer2", "Asiomme", "ixer1", "Wrapper",
          "mme", "RealPlayer Audio Filter", "mixer", "Mixer2"})
        AddInstance(name);
    EXPECT_EQ(Names(), "Mixer2;mixer;RealPlayer Audio Filter;");
}

TEST_F(DirectXPluginsTest, AKeyThatCannotBeQueriedEndsItsWalkWithoutAWord) {
    AddClass("{1}", "Echo");
    registry.failing = {"QueryInfo"};
    EXPECT_EQ(Names(), "");
    registry.failing = {"EnumerateKey"};
    EXPECT_EQ(Names(), "");
    EXPECT_EQ(Log(), "");
    EXPECT_EQ(registry.OpenKeyCount(), 0U);
}

TEST_F(DirectXPluginsTest, NamesAreWrittenByteForByte) {
    AddInstance("R\xE9verb, \"wide\"");
    EXPECT_EQ(Names(), "R\xE9verb, \"wide\";");
}

TEST_F(DirectXPluginsTest, ControlCharactersInANameAreWrittenByteForByteToo) {
    using namespace std::string_literals;
    AddClass("{1}", "a\r\n\0b\x1b[2J"s);
    AddInstance("Echo");
    EXPECT_EQ(Names(), "a\r\n\0b\x1b[2J;Echo;"s);
    EXPECT_EQ(Log(), "");
}

TEST(IsIncompatibleTest, TheNameIsLookedForAnywhereInTheList) {
    EXPECT_TRUE(IsIncompatible("ACM Wrapper;"));
    EXPECT_TRUE(IsIncompatible("SMPTEGenerator;"));
    EXPECT_FALSE(IsIncompatible("RealPlayer Audio Filter;"));
    EXPECT_TRUE(IsIncompatible("RealPlayer Audio FilterSMPTEGenerator;"));
    EXPECT_FALSE(IsIncompatible("acm wrapper;"));
    EXPECT_TRUE(IsIncompatible(";"));
}

}  // namespace
}  // namespace marlo
