// The reports with each of their allocations failing in turn.

#include <cstddef>
#include <new>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "core/RecordIndex.h"
#include "core/Records.h"
#include "reports/ReportView.h"
#include "reports/ResultSearch.h"
#include "tests/support/FailingAllocation.h"
#include "tests/support/ReportTest.h"

namespace marlo {
namespace {

class ReportOutOfMemoryTest : public test::ReportTest {
  protected:
    ReportOutOfMemoryTest() {
        std::string installed;
        std::string used;
        for (int i = 0; i < 300; ++i) {
            names.push_back("A plug-in with a long name " + std::to_string(i));
            paths.push_back("/vst/" + std::to_string(i) + ".dll");
            installed += QuotedFields({"VST", names.back(), paths.back()}) + "\r\n";
            used += QuotedFields({names.back(), i % 3 == 0 ? "DirectX" : "VST", "On"}) + "\r\n";
        }
        folder.Write("resultfiles/installedplugins.csv", installed);
        folder.Write("resultfiles/tln.csv", used);
    }

    /// Looks for a record, a second time if memory runs out.
    static std::string_view FindAgain(RecordIndex& index, const std::string& name) {
        try {
            return index.Find(name).value_or("nothing");
        } catch (const std::bad_alloc&) {
            return index.Find(name).value_or("nothing");
        }
    }

    test::Texts names;
    test::Texts paths;
};

TEST_F(ReportOutOfMemoryTest, AListStaysWholeAndTheNextReportIsComplete) {
    for (const ReportKind kind :
         {ReportKind::Used, ReportKind::Unused, ReportKind::All, ReportKind::Uninstalled}) {
        ShowInstalledPlugins(pane, NameOf(kind));
        const auto expected = Rows();
        const std::size_t failures = test::FailEach(test::Failing::One, [&] {
            ResultPane fresh{application, window};
            ShowInstalledPlugins(fresh, NameOf(kind));
            if (!test::FailingNthAllocation::HasFailed())
                return;
            for (const std::string& name : test::NamesOf(fresh.lstSongs))
                EXPECT_FALSE(name.empty());
            ShowInstalledPlugins(fresh, NameOf(kind));
            EXPECT_EQ(test::RowsOf(fresh.lstSongs), expected);
        });
        EXPECT_GT(failures, 20U) << NameOf(kind);
    }
}

TEST_F(ReportOutOfMemoryTest, AnIndexForgetsNoRecord) {
    const auto makeKey = [](RecordReader& record, std::string& key) {
        key = record[1];
        return true;
    };
    std::size_t wrongAnswers = 0;
    const std::size_t failures = test::FailEach(test::Failing::One, [&] {
        try {
            RecordIndex index(application, "\\resultfiles\\installedplugins.csv", makeKey);
            for (std::size_t i = names.size(); i-- > 0;)
                wrongAnswers += FindAgain(index, names[i]) == paths[i] ? 0 : 1;
        } catch (const std::bad_alloc&) {
            return;  // there was no index
        }
    });
    EXPECT_EQ(wrongAnswers, 0U);
    EXPECT_GT(failures, 20U);
}

}  // namespace
}  // namespace marlo
