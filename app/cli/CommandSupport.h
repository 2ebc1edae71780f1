#pragma once

#include <cstddef>
#include <string>

#include "app/cli/Commands.h"
#include "app/cli/ProgressLine.h"
#include "app/cli/TerminalWindow.h"
#include "core/Application.h"

namespace marlo::cli {

/// The application that a command runs in. What goes to its error log is said by `window`, which
/// has to outlive it, and so has `environment`.
Application ApplicationOf(const Environment& environment, TerminalWindow& window);

/// How a run shows its progress: redrawn on a terminal, as lines elsewhere if that is wanted.
ProgressStyle ProgressStyleFor(bool wantedAnyway);

/// Says on the standard error stream what is wrong with the use of a command.
/// @return `exitCode`.
int Complain(const std::string& command, int exitCode, const std::string& text);

/// Says that the settings cannot keep a path.
/// @return kFailed.
int ComplainOfPath(const std::string& command, const std::string& path);

/// Says that a NUL byte can only be had behind paths.
/// @return kWrongUsage.
int ComplainOfNull(const std::string& command);

/// "1 project", "2 projects".
std::string Counted(std::size_t count, const std::string& noun);

/// How wide the columns of a table on the standard output may be, in cells: a terminal's lines are
/// short, and elsewhere nothing is cut.
int MaxColumnWidth();

/// Prints a field and a line end: as it is for a program to read, made harmless on a terminal.
void PrintField(const std::string& field);

/// Flushes the standard output.
/// @return `exitCode`, or kFailed when the output could not be written, which is said.
int FinishOutput(int exitCode);

}  // namespace marlo::cli
