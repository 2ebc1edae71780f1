#pragma once

#include <cstddef>
#include <random>
#include <string>

namespace marlo::test {

// Projects that are full of the cases which a fast scan can get wrong, each made from what `Random`
// gives. Their files are made by the ten thousand, so that this is built like the program.

using Random = std::mt19937;

/// Bytes out of the ones that the scan looks for.
std::string MarkerSoup(Random& random, std::size_t count);

/// What a bank begins with, now and then not quite right.
std::string BankHeader(Random& random);

/// A file out of pieces that a scan meets, stops at, skips or is led astray by.
std::string Pieces(Random& random, std::size_t pieces);

/// The beginning of a file, of any length that is less.
std::string CutSomewhere(Random& random, std::string bytes);

/// A long file with pieces around one of the reader's block borders.
std::string AroundABorder(Random& random);

}  // namespace marlo::test
