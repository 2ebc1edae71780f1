#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/Application.h"
#include "platform/Registry.h"

namespace marlo {

/// What a filter's pins accept: groups of five texts, the filter's friendly name, the pin's number
/// and the media type's number in the pin (decimal, from 1), its major type and its subtype (GUIDs
/// as `FormatGUID` writes them). Empty when the filter has no registration at all.
using PinTypeTable = std::vector<std::string>;

/// Reads what a filter's pins accept from its key's "FriendlyName" and "FilterData".
///
/// Of the registration only what is needed is looked at, on the assumption that every pin's media
/// types follow it at once and that pins have no mediums.
///
/// @return a table of one element, the name, when the registration is too short to be one. After a
///         failure, such as an offset that leads out of the data, which is logged under
///         "GetPluginTypes": what was read, and empty texts after it.
PinTypeTable GetPluginTypes(const Application& application, platform::RegistryKey hive,
                            const std::string& keyPath);

/// Whether Cubase SX can use a filter as an effect: pin 1 and pin 2 each accept audio that is PCM
/// or of any subtype.
/// @param name receives the filter's name, unless the table has no group.
/// @return false also after a failure, as at a group of empty texts, which is logged under
///         "IsCubaseCompatible".
bool IsCubaseCompatible(const Application& application, const PinTypeTable& table,
                        std::string& name);

/// Writes a GUID as text.
/// @param digits its 16 bytes in memory order as 32 hexadecimal digits.
/// @return for example "73647561-0000-0010-8000-00AA00389B71". Another number of
///         digits is a failure, which is logged under "FormatGUID: <digits>" and gives "".
std::string FormatGUID(const Application& application, std::string_view digits);

}  // namespace marlo
