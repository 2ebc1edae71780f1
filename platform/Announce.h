#pragma once

#include <string>

#include "platform/Terminal.h"

namespace marlo::platform {

/// Tells the user what a program that is about its window has to say without one: on a stream where
/// that leads somewhere or the program was started from a terminal, else in a message box.
/// @param stream the standard output or the standard error stream.
/// @param text whole lines, in UTF-8.
void Announce(Stream stream, const std::string& text);

}  // namespace marlo::platform
