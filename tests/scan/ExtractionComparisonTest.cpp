// The fast scan against the byte-at-a-time one, on generated files that are full of the cases
// which a fast scan can get wrong.

#include <algorithm>
#include <array>
#include <functional>
#include <random>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "scan/BlockReader.h"
#include "tests/support/ApplicationTest.h"
#include "tests/support/LiteralReader.h"
#include "tests/support/ScanComparison.h"
#include "tools/ProjectWriter.h"

namespace marlo {
namespace {

using Random = std::mt19937;
using namespace std::string_literals;
using namespace std::string_view_literals;

constexpr std::size_t kBlock = BlockReader::kBlockSize;

std::string AnyBytes(Random& random, std::size_t count) {
    std::string bytes;
    std::generate_n(std::back_inserter(bytes), count,
                    [&] { return static_cast<char>(random() & 0xFFU); });
    return bytes;
}

/// Bytes out of the ones that the scan looks for.
std::string MarkerSoup(Random& random, std::size_t count) {
    constexpr auto alphabet =
        "CCCcnKFBChxk\0\0\1"
        "10x"sv;
    std::string bytes;
    std::generate_n(std::back_inserter(bytes), count,
                    [&] { return alphabet[random() % alphabet.size()]; });
    return bytes;
}

std::string WithoutZeros(Random& random, std::size_t count) {
    std::string bytes = AnyBytes(random, count);
    std::replace(bytes.begin(), bytes.end(), '\0', 'z');
    return bytes;
}

std::string BankHeader(Random& random) {
    constexpr std::array magics = {"FBCh"sv, "FxBk"sv, "FxBk"sv, "FBCh"sv, "FxCk"sv, "fxbk"sv};
    std::string header(random() % 16 == 0 ? "ccnK" : "CcnK");
    header += MarkerSoup(random, 4);
    return header.append(magics[random() % magics.size()]);
}

std::string PluginSlot(Random& random) {
    constexpr std::array names = {"Reverb A"sv,
                                  "R\xE9verb"sv,
                                  "Chorus, \"Wide\""sv,
                                  "CcnKxxxxFBCh"sv,
                                  "A name of forty-one characters, more or less"sv,
                                  "Q"sv};
    return tools::PluginBytes({.name = std::string(names[random() % names.size()]),
                               .isVst = random() % 3 != 0,
                               .state = static_cast<std::uint8_t>(random() % 3),
                               .isOpaqueBank = random() % 2 == 0,
                               .chunkSize = random() % 60});
}

/// A file out of pieces that a scan meets, stops at, skips or is led astray by.
std::string Pieces(Random& random, std::size_t pieces) {
    std::string bytes;
    for (std::size_t i = 0; i < pieces; ++i) {
        switch (random() % 9) {
            case 0:
                bytes += std::string(random() % 80, '\0');
                break;
            case 1:
                bytes += MarkerSoup(random, random() % 40);
                break;
            case 2:
                bytes += WithoutZeros(random, random() % 150);
                break;
            case 3:
                bytes += std::string(random() % 9, 'C');
                break;
            case 4:
            case 5:
                bytes += BankHeader(random);
                break;
            case 6:
                // A bank that follows the piece before it at every distance.
                bytes += std::string(random() % 70, 'x') + BankHeader(random);
                break;
            default:
                bytes += PluginSlot(random);
        }
    }
    return bytes;
}

std::string CutSomewhere(Random& random, std::string bytes) {
    if (!bytes.empty())
        bytes.resize(random() % bytes.size());
    return bytes;
}

/// A long file with pieces around one of the reader's block borders.
std::string AroundABorder(Random& random) {
    constexpr std::array blocks = {1, 1, 1, 1, 1, 1, 2, 2, 5};
    const std::size_t border = static_cast<std::size_t>(blocks[random() % blocks.size()]) * kBlock;
    const std::size_t before = random() % 200;
    std::string bytes = random() % 2 == 0 ? std::string(border - before, '\0')
                                          : WithoutZeros(random, border - before);
    if (random() % 4 == 0)
        bytes[random() % bytes.size()] = '\0';
    bytes += Pieces(random, 1 + random() % 6);
    if (random() % 4 == 0)
        bytes.resize(border - 2 + random() % 5);
    return bytes;
}

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
    CompareMany(70000, [](Random& random) { return Pieces(random, 1 + random() % 24); });
    EXPECT_GT(tally.banks, 60000);
    EXPECT_GT(tally.merged, 6000);
    EXPECT_GT(tally.failures, 6000);
    EXPECT_GT(tally.zeroNames, 600);
    EXPECT_GT(tally.droppedNames, 600);
    EXPECT_GT(tally.missingZeros, 600);
}

TEST_F(ExtractionComparisonTest, TwentyThousandCutFiles) {
    CompareMany(20000, [](Random& random) {
        return CutSomewhere(random, std::string(60, '\0') + Pieces(random, 12));
    });
    EXPECT_GT(tally.banks, 20000);
    EXPECT_GT(tally.droppedNames, 200);
}

TEST_F(ExtractionComparisonTest, FifteenThousandFilesOfMarkerBytesOnly) {
    CompareMany(15000, [](Random& random) {
        std::string bytes = MarkerSoup(random, random() % 600);
        for (int i = 0; i < 6; ++i)
            bytes.insert(random() % (bytes.size() + 1), BankHeader(random));
        return bytes;
    });
    EXPECT_GT(tally.banks, 3000);
}

TEST_F(ExtractionComparisonTest, TwoThousandFilesAroundTheReadersBlockBorders) {
    CompareMany(2000, AroundABorder);
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
