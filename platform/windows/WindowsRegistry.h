#pragma once

#include "platform/Registry.h"

namespace marlo::platform {

/// The registry of Windows. What the program's own code page (UTF-8, where Windows lets a program
/// choose) makes of names and texts is put into the system's ANSI code page where it fits.
class WindowsRegistry final : public Registry {
  public:
    /// A bare key of the 32-bit view counts as absent where the 64-bit view has it, as on every
    /// system.
    std::int32_t OpenKey(RegistryKey parent, const std::string& path, RegistryKey& opened) override;
    std::int32_t QueryValue(RegistryKey key, const std::string& name, std::int32_t& type,
                            std::span<unsigned char> buffer, std::uint32_t& length) override;
    std::int32_t QueryInfo(RegistryKey key, std::uint32_t& subkeyCount,
                           std::uint32_t& longestName) override;
    std::int32_t EnumerateKey(RegistryKey key, std::uint32_t index, std::span<char> buffer,
                              std::uint32_t& length) override;
    void CloseKey(RegistryKey key) override;

    /// Paths in the registry are this machine's own; this one is put back into the program's own
    /// code page.
    std::string LocalPath(const std::string& path) override;
};

}  // namespace marlo::platform
