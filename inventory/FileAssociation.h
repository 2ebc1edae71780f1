#pragma once

#include <string>

#include "core/Application.h"

namespace marlo {

/// The program that the desktop opens files of a type with.
///
/// Where the registry holds the associations, the program is taken out of the command of the
/// type's "open" verb: in an expandable command the first variable is expanded, and what stands in
/// front of it is dropped; the program ends with the first ".EXE", and where there is none, after
/// three characters.
///
/// @param extension with its dot, for example ".csv".
/// @return the path of an executable; empty when there is no association, which is logged too
///         (error 0), and after a failure. Both are logged under "GetAssociatedApp: <extension>".
std::string GetAssociatedApp(const Application& application, const std::string& extension);

/// Where no program for the CSV result files is chosen yet, takes the one that is associated with
/// ".csv", if there is one. It is cut to `kMaxSettingLength` bytes.
void FillInCsvProgram(const Application& application);

}  // namespace marlo
