#pragma once

#include <string>
#include <string_view>
#include <unordered_set>

#include "core/Application.h"
#include "core/LineWriter.h"

namespace marlo {

/// The friendly names that a run has written, so that a filter that is registered in two places is
/// written once. Holds the empty name from the start.
using SeenNames = std::unordered_set<std::string>;

/// The first walk: the classes of HKEY_CLASSES_ROOT, "CLSID", whose merit is that of DirectX
/// effects. A "Merit" that is no number is a failure, logged under "GetCLSIDPlugins", which ends
/// the walk and leaves its key open.
void GetCLSIDPlugins(const Application& application, SeenNames& seen, LineWriter& output);

/// The second walk: the DirectShow filters of the machine that `IsCubaseCompatible`. Failures are
/// logged under "GetDirectShowPlugins".
void GetDirectShowPlugins(const Application& application, SeenNames& seen, LineWriter& output);

/// The third walk: the filters that the device enumerator keeps for the user, likewise. Failures
/// are logged under "GetActiveMoviePlugins".
void GetActiveMoviePlugins(const Application& application, SeenNames& seen, LineWriter& output);

/// Writes the line of a filter, unless its name is empty, excluded or seen before. A failure is
/// logged under "AddToArray".
/// @param name compared exactly.
void AddToArray(const Application& application, const std::string& name, SeenNames& seen,
                LineWriter& output);

/// Whether `text` occurs anywhere in the list of what is no effect. Callers pass a name with ";"
/// behind it, which makes it a whole name of the list but for what the list has run together.
bool IsIncompatible(std::string_view text);

}  // namespace marlo
