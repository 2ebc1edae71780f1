#pragma once

#include <string>

namespace marlo::cli {

// The scripts that complete the program's command lines, one for each shell. What they complete is
// in CommandTable.h: commands, options, names that can be chosen, folders, files, and where
// projects are wanted, ".cpr" files in capitals or small letters.

/// For bash from 4.4 on; needs no other script.
std::string BashCompletion();

/// For zsh: to be kept as "_marlo-cli" in a folder of `fpath`, or to be sourced behind `compinit`.
std::string ZshCompletion();

/// For fish from 3.0 on.
std::string FishCompletion();

}  // namespace marlo::cli
