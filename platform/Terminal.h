#pragma once

#include <optional>
#include <string>

namespace marlo::platform {

enum class Stream { In, Out, Error };

/// Has the standard streams pass bytes on as they are, and terminals take them for UTF-8, where
/// that is not the system's own way. To be called before anything is written; terminals are as they
/// were when the program ends.
void PrepareStreams();

/// Whether the stream is connected to a terminal.
bool IsTerminal(Stream stream);

/// The width of the terminal behind `stream` in character cells; 80 when it does not tell.
int TerminalWidth(Stream stream);

/// Whether the stream is connected to a terminal that obeys escape sequences, for example the one
/// that clears a line.
bool ObeysSequences(Stream stream);

/// Whether the stream is connected to a terminal that shows colours.
bool ShowsColours(Stream stream);

/// From now on, the first interrupt key (Ctrl-C) is noted rather than ending the program; a second
/// one ends it. Where interrupts are ignored, they stay so.
void NoteInterrupts();

/// Whether an interrupt was noted since `NoteInterrupts`.
bool Interrupted();

/// Reads one line from the standard input, without its line end.
/// @return nothing at the end of the input, after an error, or when an interrupt ends the wait.
std::optional<std::string> ReadLine();

}  // namespace marlo::platform
