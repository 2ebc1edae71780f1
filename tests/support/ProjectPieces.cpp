#include "tests/support/ProjectPieces.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>
#include <string_view>

#include "scan/BlockReader.h"
#include "tools/ProjectWriter.h"

namespace marlo::test {

using namespace std::string_view_literals;

namespace {

constexpr std::size_t kBlock = BlockReader::kBlockSize;

std::string AnyBytes(Random& random, std::size_t count) {
    std::string bytes;
    bytes.reserve(count + sizeof(std::uint32_t));
    while (bytes.size() < count)
        for (std::uint32_t four = random(), i = 0; i < sizeof(four); ++i, four >>= 8U)
            bytes += static_cast<char>(four & 0xFFU);
    bytes.resize(count);
    return bytes;
}

std::string WithoutZeros(Random& random, std::size_t count) {
    std::string bytes = AnyBytes(random, count);
    std::replace(bytes.begin(), bytes.end(), '\0', 'z');
    return bytes;
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

}  // namespace

std::string MarkerSoup(Random& random, std::size_t count) {
    constexpr auto alphabet =
        "CCCcnKFBChxk\0\0\1"
        "10x"sv;
    std::string bytes;
    std::generate_n(std::back_inserter(bytes), count,
                    [&] { return alphabet[random() % alphabet.size()]; });
    return bytes;
}

std::string BankHeader(Random& random) {
    constexpr std::array magics = {"FBCh"sv, "FxBk"sv, "FxBk"sv, "FBCh"sv, "FxCk"sv, "fxbk"sv};
    std::string header(random() % 16 == 0 ? "ccnK" : "CcnK");
    header += MarkerSoup(random, 4);
    return header.append(magics[random() % magics.size()]);
}

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

}  // namespace marlo::test
