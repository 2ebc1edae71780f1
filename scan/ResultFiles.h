#pragma once

#include "core/Application.h"
#include "core/MainWindow.h"
#include "scan/SearchLists.h"

namespace marlo {

/// Writes what a search collected to the three files in the result folder. Every field is in
/// double quotes, fields are joined by commas, lines end with CR LF, nothing is escaped.
///
/// | file        | one line per                     | fields                           |
/// |-------------|----------------------------------|----------------------------------|
/// | results.csv | bank found                       | project path, name, type, state  |
/// | fln.csv     | plug-in of a project             | project path, name, type, state  |
/// | tln.csv     | plug-in, over all projects       | name, type, state                |
///
/// The type is padded to seven characters in the first two files and trimmed in the third. A name
/// with a comma in it gives the third file shifted fields.
///
/// Each file is replaced as a whole when its new version is complete. While another program holds
/// the old one, the user is asked to close it; when the user cancels, this file and those after
/// it stay as they were.
///
/// @return false after a failure, which is logged under "CreateResultFiles"; the files already
///         replaced stay. Also false when a key could not be split for tln.csv, which is logged
///         with number 0; the files are then complete but for that key. True after a cancel.
bool CreateResultFiles(const Application& application, MainWindow& window,
                       const SearchLists& lists);

}  // namespace marlo
