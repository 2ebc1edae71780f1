// The reports and the search against the plain versions of them, on result files made at random,
// faults included.

#include <array>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <map>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "reports/PluginReports.h"
#include "reports/ResultSearch.h"
#include "tests/support/LiteralReports.h"
#include "tests/support/ReportTest.h"

namespace marlo {
namespace {

using test::LiteralReports;
using test::LiteralRow;
using test::Texts;

constexpr int kRounds = 1500;

class ReportComparisonTest : public test::ReportTest {
  protected:
    ReportComparisonTest() {
        application.onErrorLogged = [this](const ErrorEntry& entry) {
            entries.push_back(entry.procedure + " " + std::to_string(entry.number));
        };
        // The projects that are there.
        for (const char* name : {"a.cpr", "b.cpr"})
            folder.Write(name, "");
    }

    std::size_t Pick(std::size_t count) { return random() % count; }

    std::string PickOne(const Texts& texts) { return texts[Pick(texts.size())]; }

    template <class Value>
    Value PickAny(const std::vector<Value>& values) {
        return values[Pick(values.size())];
    }

    /// A field, mostly in quotes.
    std::string Field(const Texts& values) {
        std::string value = PickOne(values);
        switch (Pick(12)) {
            case 0:
                return value;
            case 1:
                return " \"" + value + " \"";
            case 2:
                return "\"" + value + "\"\"";
            default:
                return "\"" + value + "\"";
        }
    }

    /// A result file of a few lines, of which some are malformed; or none at all.
    void WriteRandom(const std::string& name, const std::vector<Texts>& columns) {
        const std::string path = folder.Path("resultfiles/" + name);
        std::filesystem::remove_all(path);
        const std::size_t fault = Pick(25);
        if (fault == 0)
            return;
        if (fault == 1) {
            folder.MakeFolder("resultfiles/" + name);
            return;
        }
        std::string text;
        for (std::size_t lines = Pick(12); lines > 0; --lines) {
            const std::size_t missing = Pick(10) == 0 ? 1 + Pick(columns.size()) : 0;
            std::string line;
            for (std::size_t i = 0; i + missing < columns.size(); ++i)
                line += (i == 0 ? "" : ",") + Field(columns[i]);
            text += line + (Pick(8) == 0 ? "\n" : "\r\n");
        }
        if (Pick(6) == 0 && !text.empty())
            text.pop_back();
        folder.Write("resultfiles/" + name, text);
    }

    void WriteRandomFiles() {
        const Texts names = {"A", "a", "AV", "B", "R\xE9verb", "", "VST", "x,y"};
        const Texts types = {"VST", "VST    ", "DirectX", "ST", "vst", ""};
        const Texts states = {"On", "Off", "off", ""};
        const Texts paths = {"/a", "/b", "<empty>", "", "On"};
        const Texts projects = {folder.Path("a.cpr"), folder.Path("b.cpr"), folder.Path("b.cpr"),
                                folder.Path("gone.cpr")};
        WriteRandom("installedplugins.csv", {types, names, paths});
        WriteRandom("tln.csv", {names, types, states});
        WriteRandom("fln.csv", {projects, names, types, states});
        WriteSetting(application, setting::kIgnoreDirectX, PickOne({"", "0", "1", "1"}));
        WriteSetting(application, setting::kIgnoreOff, PickOne({"", "0", "1", "1"}));
    }

    /// Rows, messages and log entries, the rows first.
    struct Outcome {
        std::vector<LiteralRow> rows;
        Texts messages;
        Texts entries;

        bool operator==(const Outcome&) const = default;
    };

    Outcome TakeOutcome(std::vector<LiteralRow> rows) {
        Outcome outcome{std::move(rows), window.MessageTexts(), entries};
        window.messages.clear();
        entries.clear();
        return outcome;
    }

    std::vector<LiteralRow> OwnRows() const {
        std::vector<LiteralRow> rows;
        const ResultList& list = pane.lstSongs;
        for (std::size_t position = 1; position <= list.RowCount(); ++position) {
            const ResultRow row = list.RowAt(position);
            rows.push_back({std::string(list.Key(row)),
                            {std::string(list.Text(row))},
                            list.Colour(row) == TextColour::Greyed});
            for (int subItem = 1; subItem < list.ColumnCount(); ++subItem)
                rows.back().cells.emplace_back(list.SubItem(row, subItem));
        }
        return rows;
    }

    /// Runs both versions on many made files, with a list of some columns, of which a report may
    /// be told the wrong ones.
    void Compare(
        const std::function<void(const std::array<int, 3>& columns)>& own,
        const std::function<void(LiteralReports&, const std::array<int, 3>& columns)>& literal) {
        for (int round = 0; round < kRounds && !HasFailure(); ++round) {
            WriteRandomFiles();
            const bool isWrong = Pick(15) == 0;
            const int columnCount = isWrong ? static_cast<int>(Pick(5)) + 1 : 5;
            const auto column = [&] { return isWrong ? static_cast<int>(Pick(6)) : 4; };
            const std::array<int, 3> columns = {column(), column() - 1, column() + 1};
            while (pane.lstSongs.ColumnCount() > 0)
                pane.lstSongs.RemoveColumn(1);
            pane.lstSongs.ClearRows();
            AddColumns(Texts(static_cast<std::size_t>(columnCount), "Header"));
            own(columns);
            const Outcome ownOutcome = TakeOutcome(OwnRows());
            LiteralReports reports(application, window, columnCount);
            literal(reports, columns);
            const Outcome literalOutcome = TakeOutcome(reports.Rows());
            Count(literalOutcome);
            EXPECT_EQ(ownOutcome.rows, literalOutcome.rows) << "round " << round;
            EXPECT_EQ(ownOutcome.messages, literalOutcome.messages) << "round " << round;
            EXPECT_EQ(ownOutcome.entries, literalOutcome.entries) << "round " << round;
        }
        // What was made is worth comparing.
        EXPECT_GT(failed, kRounds / 20);
        EXPECT_GT(kRounds - failed, kRounds / 3);
        EXPECT_GT(withSeveralRows, kRounds / 40);
    }

    void Count(const Outcome& outcome) {
        failed += outcome.messages.empty() ? 0 : 1;
        withSeveralRows += outcome.rows.size() > 2 ? 1 : 0;
    }

    std::mt19937 random{20'061'028};
    Texts entries;
    int failed = 0;
    int withSeveralRows = 0;
};

using Columns = std::array<int, 3>;

std::int16_t Short(int column) {
    return static_cast<std::int16_t>(column);
}

TEST_F(ReportComparisonTest, TheInstalledPluginsAreThoseOfThePlainReport) {
    Compare([&](const Columns& c) { ShowAllPlugins(pane, Short(c[0]), Short(c[1])); },
            [](LiteralReports& reports, const Columns& c) { reports.ShowAllPlugins(c[0], c[1]); });
}

TEST_F(ReportComparisonTest, TheUsedPluginsAreThoseOfThePlainReport) {
    Compare([&](const Columns& c) { ShowUsedPlugins(pane, Short(c[0]), Short(c[1]), Short(c[2])); },
            [](LiteralReports& reports, const Columns& c) {
                reports.ShowUsedPlugins(c[0], c[1], c[2]);
            });
}

TEST_F(ReportComparisonTest, TheUnusedPluginsAreThoseOfThePlainReport) {
    Compare(
        [&](const Columns& c) { ShowUnusedPlugins(pane, Short(c[0]), Short(c[1])); },
        [](LiteralReports& reports, const Columns& c) { reports.ShowUnusedPlugins(c[0], c[1]); });
}

TEST_F(ReportComparisonTest, TheUninstalledPluginsAreThoseOfThePlainReport) {
    Compare([&](const Columns& c) { ShowUninstalledPlugins(pane, Short(c[0]), Short(c[1])); },
            [](LiteralReports& reports, const Columns& c) {
                reports.ShowUninstalledPlugins(c[0], c[1]);
            });
}

TEST_F(ReportComparisonTest, TheSearchFindsWhatThePlainSearchFinds) {
    SearchPane search;
    const auto own = [&](const Columns& c) {
        search.cboSearchType = PickAny<std::optional<MatchType>>(
            {MatchType::Exact, MatchType::StartsWith, MatchType::EndsWith, MatchType::Contains,
             MatchType::Contains, std::nullopt});
        search.txtSearchText = PickOne({"", "A", "V", "ST", ".cpr", "a.cpr", "é", "\xE9verb"});
        search.chkIgnoreCase = Pick(2) == 0;
        search.mode =
            PickAny<SearchMode>({SearchMode::ProjectsByPlugin, SearchMode::PluginsInProject});
        SearchResultFiles(pane, search, Short(c[0]), Short(c[2]));
    };
    Compare(own, [&](LiteralReports& reports, const Columns& c) {
        reports.SearchResultFiles(search, c[0], c[2]);
    });
}

}  // namespace
}  // namespace marlo
