#pragma once

#include <optional>
#include <string>
#include <vector>

namespace marlo {

// A program is either installed, in PREFIX/bin with a file PREFIX/share/marlo/installed, or
// portable: then everything is in one folder that may be anywhere. On Windows it is always
// portable.

/// Where the files are that come with the program, such as its pictures: PREFIX/share/marlo when it
/// is installed, else the program's own folder.
std::string ProgramFiles();

/// The application folder that a program runs with. Texts are sentences for the user, with paths in
/// them as they are.
struct ApplicationFolder {
    std::string path;                   ///< from the root on, without a separator at its end
    std::string failure;                ///< why the program cannot run with it; empty when it can
    std::vector<std::string> warnings;  ///< what will not work with it, and what to do about that
};

/// Finds the application folder. For an installed program that is the folder "marlo" for the user's
/// data, which is made when it is missing, as is its result folder. For a portable one it is the
/// program's own.
/// @param given the one that the user wants instead, which has to exist and is taken as it is.
ApplicationFolder FindApplicationFolder(const std::optional<std::string>& given);

}  // namespace marlo
