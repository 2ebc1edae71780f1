#pragma once

#include <memory>
#include <optional>
#include <string>

#include "platform/Registry.h"

namespace marlo {

/// An option that both programs have, as their help describes it.
struct OptionText {
    const char* name;
    const char* valueName;
    const char* help;
};

inline constexpr OptionText kAppFolderOption = {
    "--app-folder", "DIR",
    "The application folder, with settings.ini and resultfiles in it (default: the program's own "
    "folder; for an installed program ~/.local/share/marlo)"};

/// Only where the system has Wine prefixes (see `platform::HasWinePrefixes`).
inline constexpr OptionText kWinePrefixOption = {
    "--wine-prefix", "DIR",
    "The Wine prefix whose DirectX plug-ins are listed (default: WINEPREFIX, else ~/.wine)"};

/// The registry that a program works with.
struct OpenedRegistry {
    std::unique_ptr<platform::Registry> prefix;  ///< that of a Wine prefix, if one was asked for
    std::string failure;  ///< why a prefix cannot be read, for the user; else empty

    platform::Registry& Get() const;
};

/// Opens the registry of a Wine prefix.
/// @param winePrefix the prefix's folder; nothing for the system's own registry, or the user's own
///        prefix.
OpenedRegistry OpenRegistry(const std::optional<std::string>& winePrefix);

}  // namespace marlo
