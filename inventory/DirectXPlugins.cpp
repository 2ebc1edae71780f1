#include "inventory/DirectXPlugins.h"

#include <cstdint>
#include <variant>

#include "core/ErrorLog.h"
#include "core/Records.h"
#include "core/RunTimeError.h"
#include "inventory/FilterData.h"
#include "inventory/GetInstalledPlugins.h"
#include "inventory/ReadRegistry.h"

namespace marlo {

namespace {

using platform::Registry;
using platform::RegistryKey;

// The ";" that is missing behind "RealPlayer Audio Filter" is missing on purpose: that filter is
// listed, and "SMPTEGenerator" is not.
constexpr std::string_view kExclusionList =
    "ACM Wrapper;G.711 Codec;AudioEngineInput;AudioEngineOutput;RealPlayer Audio "
    "FilterSMPTEGenerator;mixer1;mixer2;mixer3;MidiFilter;msvcrt;lsprst7;HALionReWire;Asiodxfd;"
    "Asiomm16;Asiomm32;Asiomme;";

/// Under this merit, "do not use" for players of media, audio effects register.
constexpr std::int32_t kEffectMerit = 0x00200000;

constexpr const char* kFilterCategory = "CLSID\\{083863F1-70DE-11d0-BD40-00A0C911CE86}\\Instance";
constexpr const char* kFilterCache =
    "Software\\Microsoft\\ActiveMovie\\devenum\\{083863F1-70DE-11D0-BD40-00A0C911CE86}";

/// Calls `visit` with the name of each key directly below a key. What `visit` throws leaves the key
/// open.
template <class Visit>
void ForEachSubkey(Registry& registry, RegistryKey hive, const std::string& path, Visit visit) {
    using platform::registry_result::kSuccess;
    RegistryKey key = 0;
    if (registry.OpenKey(hive, path, key) != kSuccess)
        return;
    std::uint32_t count = 0;
    std::uint32_t longestName = 0;
    if (registry.QueryInfo(key, count, longestName) != kSuccess)
        count = 0;
    std::string buffer(longestName + 1, '\0');
    for (std::uint32_t index = 0; index < count; ++index) {
        std::uint32_t length = 0;
        // It fails when programs change the registry in the meantime.
        if (registry.EnumerateKey(key, index, buffer, length) == kSuccess)
            visit(buffer.substr(0, length));
    }
    registry.CloseKey(key);
}

/// The number that a merit is. A class without one has the merit 0.
std::int32_t MeritOf(const RegistryValue& value) {
    if (std::holds_alternative<std::monostate>(value))
        return 0;
    const auto* const number = std::get_if<std::int32_t>(&value);
    if (number == nullptr)
        throw RunTimeError(ErrorNumber::TypeMismatch);
    return *number;
}

void GetFilters(const Application& application, RegistryKey hive, const std::string& path,
                SeenNames& seen, LineWriter& output) {
    ForEachSubkey(application.registry, hive, path, [&](const std::string& subkey) {
        const PinTypeTable table = GetPluginTypes(application, hive, path + "\\" + subkey);
        if (table.size() <= 1)
            return;
        std::string name;
        if (IsCubaseCompatible(application, table, name))
            AddToArray(application, name, seen, output);
    });
}

void ShowPlace(MainWindow& window, const char* place) {
    window.SetText2(place);
    window.Repaint();
    window.LetEventsRun();
}

}  // namespace

void GetDirectXPlugins(const Application& application, MainWindow& window, LineWriter& output) {
    RunGuarded(application, "GetDirectXPlugins", [&] {
        SeenNames seen{""};
        ShowPlace(window, "CLSID Root");
        GetCLSIDPlugins(application, seen, output);
        ShowPlace(window, "Direct Show");
        GetDirectShowPlugins(application, seen, output);
        ShowPlace(window, "Active Movie");
        GetActiveMoviePlugins(application, seen, output);
    });
}

void GetCLSIDPlugins(const Application& application, SeenNames& seen, LineWriter& output) {
    RunGuarded(application, "GetCLSIDPlugins", [&] {
        const RegistryKey hive = platform::kClassesRoot;
        ForEachSubkey(application.registry, hive, "CLSID", [&](const std::string& subkey) {
            const std::string path = "CLSID\\" + subkey;
            // The types to start with make a missing name empty and a missing merit 0.
            std::int32_t nameType = 0;
            const auto name = GetRegistryValue(application, hive, path, "", nameType);
            std::int32_t meritType = platform::registry_type::kDword;
            const auto merit = GetRegistryValue(application, hive, path, "Merit", meritType);
            if (MeritOf(merit) == kEffectMerit)
                AddToArray(application, TextOf(name), seen, output);
        });
    });
}

void GetDirectShowPlugins(const Application& application, SeenNames& seen, LineWriter& output) {
    RunGuarded(application, "GetDirectShowPlugins", [&] {
        GetFilters(application, platform::kClassesRoot, kFilterCategory, seen, output);
    });
}

void GetActiveMoviePlugins(const Application& application, SeenNames& seen, LineWriter& output) {
    RunGuarded(application, "GetActiveMoviePlugins", [&] {
        GetFilters(application, platform::kCurrentUser, kFilterCache, seen, output);
    });
}

void AddToArray(const Application& application, const std::string& name, SeenNames& seen,
                LineWriter& output) {
    RunGuarded(application, "AddToArray", [&] {
        if (IsIncompatible(name + ";") || name.empty())
            return;
        if (seen.insert(name).second)
            output.WriteLine(QuotedFields({"DirectX", name, "<empty>"}));
    });
}

bool IsIncompatible(std::string_view text) {
    return kExclusionList.find(text) != std::string_view::npos;
}

}  // namespace marlo
