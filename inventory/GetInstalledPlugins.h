#pragma once

#include <string>

#include "core/Application.h"
#include "core/LineWriter.h"
#include "core/MainWindow.h"

namespace marlo {

/// Writes a line for each DirectX effect that is registered on this machine and that Cubase SX can
/// use. Looks in three places of the registry, one after the other, and shows each in the window's
/// second status box.
///
/// A key that cannot be opened ends its walk without a word, a failure in it with an entry in the
/// error log; the next walk goes on. What fails at a single filter costs that filter only.
void GetDirectXPlugins(const Application& application, MainWindow& window, LineWriter& output);

/// Writes a line for each VST plug-in library in a folder, in the order of their names without
/// regard to case, a folder's own files before those of its subfolders.
///
/// A file is a library when the desktop describes its type as "Application Extension"; on Linux
/// that is a regular file with the extension `.dll`. The plug-in's name is the file's without its
/// extension, in the ANSI code page where it fits. Excluded names are left out (see
/// `IsIncompatible`); a name that is there twice has two lines.
///
/// Each folder is shown in the window's second status box before it is opened, and events run; when
/// the Cancel button was pressed then, the walk ends. A folder that cannot be opened is skipped.
/// Each library is listed once, under its real path if that lies in `folder` (see `WalkFolder`).
///
/// @param folder a path in any form; the locations that are written are full paths.
/// @param cancelled set to true when the user cancelled.
/// @throws RunTimeError when a folder that was opened or a file's type cannot be read, or the line
///         cannot be written. Logs nothing.
void ScanVSTFolder(const Application& application, MainWindow& window, const std::string& folder,
                   bool includeSubfolders, LineWriter& output, bool& cancelled);

}  // namespace marlo
