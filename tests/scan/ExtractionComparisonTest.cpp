// The fast scan against the byte-at-a-time one, on generated files that are full of the cases
// which a fast scan can get wrong.

#include <functional>
#include <string>

#include <gtest/gtest.h>

#include "scan/BlockReader.h"
#include "tests/support/ApplicationTest.h"
#include "tests/support/LiteralReader.h"
#include "tests/support/ProjectPieces.h"
#include "tests/support/ScanComparison.h"
#include "tools/ProjectWriter.h"

namespace marlo {
namespace {

using namespace std::string_literals;
using test::Random;

constexpr std::size_t kBlock = BlockReader::kBlockSize;

/// What the generated files led to, so that a generator which has gone dull is noticed.
struct Tally {
    int files = 0;
    int banks = 0;
    int merged = 0;
    int failures = 0;
    int zeroNames = 0;
    int droppedNames = 0;
    int missingZeros = 0;
};

class ExtractionComparisonTest : public test::ApplicationTest {
  protected:
    void Compare(const std::string& bytes) {
        const std::string path = folder.Write("project.cpr", bytes);
        const test::ScanResult expected = test::ScanLiterally(path, bytes);
        ASSERT_EQ(test::ScanDifference(application, path, expected), "");
        Count(expected);
    }

    void CompareMany(int files, const std::function<std::string(Random&)>& generate) {
        for (int seed = 0; seed < files; ++seed) {
            Random random(static_cast<std::uint32_t>(seed));
            Compare(generate(random));
            if (HasFatalFailure()) {
                ADD_FAILURE() << "seed " << seed;
                return;
            }
        }
        EXPECT_EQ(tally.files, files);
    }

    void Count(const test::ScanResult& result) {
        tally.files += 1;
        tally.banks += static_cast<int>(result.occurrences.size());
        tally.merged += static_cast<int>(result.occurrences.size() - result.keys.size());
        tally.failures += result.completed ? 0 : 1;
        tally.zeroNames += result.zeroNames;
        tally.droppedNames += result.droppedNames;
        tally.missingZeros += result.missingZeros;
    }

    Tally tally;
};

TEST_F(ExtractionComparisonTest, SeventyThousandFilesOfPieces) {
    CompareMany(70000, [](Random& random) { return test::Pieces(random, 1 + random() % 24); });
    EXPECT_GT(tally.banks, 60000);
    EXPECT_GT(tally.merged, 6000);
    EXPECT_GT(tally.failures, 6000);
    EXPECT_GT(tally.zeroNames, 600);
    EXPECT_GT(tally.droppedNames, 600);
    EXPECT_GT(tally.missingZeros, 600);
}

TEST_F(ExtractionComparisonTest, TwentyThousandCutFiles) {
    CompareMany(20000, [](Random& random) {
        return test::CutSomewhere(random, std::string(60, '\0') + test::Pieces(random, 12));
    });
    EXPECT_GT(tally.banks, 20000);
    EXPECT_GT(tally.droppedNames, 200);
}

TEST_F(ExtractionComparisonTest, FifteenThousandFilesOfMarkerBytesOnly) {
    CompareMany(15000, [](Random& random) {
        std::string bytes = test::MarkerSoup(random, random() % 600);
        for (int i = 0; i < 6; ++i)
            bytes.insert(random() % (bytes.size() + 1), test::BankHeader(random));
        return bytes;
    });
    EXPECT_GT(tally.banks, 3000);
}

TEST_F(ExtractionComparisonTest, TwoThousandFilesAroundTheReadersBlockBorders) {
    CompareMany(2000, test::AroundABorder);
    EXPECT_GT(tally.banks, 1000);
    EXPECT_GT(tally.missingZeros, 50);
}

TEST_F(ExtractionComparisonTest, AMarkerAtEveryOffsetOfTheFirst120Bytes) {
    for (std::size_t offset = 0; offset < 120; ++offset)
        for (const char filler : {'\0', '\1', 'x', 'C'}) {
            const std::string name = "name\0"s + "CcnK\0\0\0\0FxBk"s;
            Compare(std::string(offset, filler) + "CcnK....FBCh" + name);
        }
    EXPECT_EQ(tally.files, 480);
    EXPECT_GT(tally.failures, 100);
}

TEST_F(ExtractionComparisonTest, AMarkerAtEveryOffsetAroundABlockBorder) {
    const std::string bank = tools::PluginBytes({.name = "Border", .chunkSize = 0});
    for (std::size_t offset = 0; offset < bank.size() + 8; ++offset)
        Compare(std::string(kBlock - offset, '\0') + bank);
    EXPECT_EQ(tally.banks, tally.files);
}

TEST_F(ExtractionComparisonTest, EverySizeAroundABlockBorder) {
    const std::string bank = tools::PluginBytes({.name = "End", .chunkSize = 0});
    for (std::size_t size = kBlock - 40; size < kBlock + 40; ++size)
        Compare((std::string(kBlock - 100, '\0') + bank).substr(0, size));
    EXPECT_GT(tally.banks, 10);
}

TEST_F(ExtractionComparisonTest, NamesLongerThanAllTheReadersBlocks) {
    for (const std::size_t length : {kBlock - 1, kBlock, kBlock + 1, 3 * kBlock, 6 * kBlock + 7}) {
        const std::string longName(length, 'n');
        Compare(std::string(20, '\0') + tools::PluginBytes({.name = longName}) +
                tools::PluginBytes({.name = "After"}));
    }
    EXPECT_EQ(tally.banks, 10);
}

TEST_F(ExtractionComparisonTest, BanksChainedBehindOneFarZero) {
    std::string bytes(2, '\0');
    bytes += std::string(2 * kBlock, 'x');
    for (int i = 0; i < 40; ++i)
        bytes += "CcnKsizeFBCh";
    Compare(bytes + std::string(100, '\0'));
    Compare(bytes);
    EXPECT_EQ(tally.banks, 40);
    EXPECT_EQ(tally.droppedNames, 1);
}

}  // namespace
}  // namespace marlo
