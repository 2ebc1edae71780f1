#pragma once

#include <functional>
#include <string>
#include <vector>

#include "core/Application.h"

namespace marlo {

/// Reads the VST plug-in folders of the settings one by one, record 50 and up, to the first empty
/// one.
/// @param visit called with each before the next is read; returns false to end.
void VisitVstFolders(const Application& application,
                     const std::function<bool(const std::string& folder)>& visit);

/// The VST plug-in folders of the settings, record 50 and up, to the first empty one.
std::vector<std::string> ReadVstFolders(const Application& application);

/// Writes the VST plug-in folders to the settings in place of those that were there, in one step: a
/// program that is killed leaves the old list or the new one.
/// @param folders cut to `kMaxSettingLength` bytes each.
/// @return false when they could not be written, which is logged under "WriteSetting".
bool WriteVstFolders(const Application& application, const std::vector<std::string>& folders);

/// Where there is no VST plug-in folder yet, takes the one that the registry names for all hosts:
/// "software\vst" of HKEY_LOCAL_MACHINE, value "VSTPluginsPath", a text or a number. It is cut to
/// `kMaxSettingLength` bytes. Nothing happens when the registry names none, or none that this
/// machine has.
void FillInVstFolder(const Application& application);

}  // namespace marlo
