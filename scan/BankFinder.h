#pragma once

#include <optional>
#include <string>

#include "scan/BlockReader.h"

namespace marlo {

/// One embedded VST bank with the plug-in descriptor in front of it.
struct Bank {
    Position nameStart = 0;  ///< the name's first byte
    Position nameEnd = 0;    ///< the zero byte behind the name
    bool isVst = false;      ///< else DirectX
    bool isOn = false;
};

/// Finds the plug-in banks of a project file, in file order.
///
/// A bank is "CcnK", four bytes of size that nobody looks at, and "FxBk" or "FBCh". Offsets from
/// the "C", as Cubase SX lays a plug-in out:
///
///     -13       1 = the plug-in is on, anything else = off
///     -52       from here backwards to the first zero byte, z: the start of the descriptor
///     z + 3     "1" = VST, anything else = DirectX
///     z + 36    the name, up to the next zero byte; its first byte counts whatever it is
///
/// The search goes forward only. A "C" takes the three bytes behind it along, whatever they are,
/// so a "C" right in front of "CcnK" hides that bank. Cubase's users have years of results that
/// depend on it.
class BankFinder {
  public:
    explicit BankFinder(BlockReader& reader) : reader_(reader) {}

    /// The next bank. Nothing when the file ends, also in the middle of a bank or a name, and when
    /// no zero byte lies between a bank and the start of the file; the search is over then.
    /// @throws RunTimeError "Bad record number" when a bank starts within the first 52 bytes, so
    ///         that its descriptor would lie before the file; whatever a failed read throws.
    std::optional<Bank> Next();

  private:
    bool SkipToBank();
    bool SkipToMarker();
    Position HopTowards(Position marker);
    std::optional<Position> FindDescriptor(Position from);
    std::optional<Bank> ReadDescriptor();

    BlockReader& reader_;
    Position pos_ = 1;  ///< the next byte to look at

    // Banks come in file order, so the zero byte in front of one is the last one's or lies behind
    // where that search began. Looking no further back keeps a file without zero bytes linear.
    Position searchedTo_ = 1;
    std::optional<Position> lastZero_;
};

}  // namespace marlo
