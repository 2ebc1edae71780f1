// Registers audio filters of every kind with the system, for a comparison of what the programs make
// of them. Usage: marlo-register-filters 32|64   (the view of the registry)

#include <cstdint>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>
#include <windows.h>

#include "tools/FilterWriter.h"

namespace {

using marlo::tools::AudioPin;
using marlo::tools::FilterData;
using marlo::tools::kAudio;
using marlo::tools::kNoGuid;
using marlo::tools::kPcm;
using marlo::tools::kVideo;
using marlo::tools::Pin;
using Bytes = std::vector<unsigned char>;

constexpr const wchar_t* kClasses = L"CLSID\\";
constexpr const wchar_t* kInstances = L"CLSID\\{083863F1-70DE-11d0-BD40-00A0C911CE86}\\Instance\\";
constexpr const wchar_t* kCache =
    L"Software\\Microsoft\\ActiveMovie\\devenum\\{083863F1-70DE-11D0-BD40-00A0C911CE86}\\";
constexpr DWORD kMerit = 0x00200000;

bool isWhole = true;

/// Keys of one view of the registry, with values.
class Writer {
  public:
    explicit Writer(REGSAM view) : view_(view) {}

    void SetBytes(HKEY hive, const std::wstring& key, const wchar_t* name, DWORD type,
                  const void* bytes, std::size_t size) const {
        HKEY opened = nullptr;
        isWhole = isWhole &&
                  RegCreateKeyExW(hive, key.c_str(), 0, nullptr, 0, KEY_WRITE | view_, nullptr,
                                  &opened, nullptr) == ERROR_SUCCESS &&
                  RegSetValueExW(opened, name, 0, type, static_cast<const BYTE*>(bytes),
                                 static_cast<DWORD>(size)) == ERROR_SUCCESS;
        RegCloseKey(opened);
    }
    void SetText(HKEY hive, const std::wstring& key, const wchar_t* name,
                 const std::wstring& text) const {
        SetBytes(hive, key, name, REG_SZ, text.c_str(), (text.size() + 1) * sizeof(wchar_t));
    }

    /// A class, which is an effect by its merit.
    void AddClass(const wchar_t* id, const wchar_t* name, DWORD merit = kMerit) const {
        const std::wstring key = std::wstring(kClasses) + id;
        if (*name != L'\0')
            SetText(HKEY_CLASSES_ROOT, key, L"", name);
        SetBytes(HKEY_CLASSES_ROOT, key, L"Merit", REG_DWORD, &merit, sizeof merit);
    }

    /// A filter, which is an effect by what its pins accept.
    void AddFilter(HKEY hive, const wchar_t* place, const std::wstring& name,
                   const Bytes& data) const {
        const std::wstring key = place + name;
        SetText(hive, key, L"FriendlyName", name);
        SetBytes(hive, key, L"FilterData", REG_BINARY, data.data(), data.size());
    }
    void AddInstance(const std::wstring& name, const Bytes& data) const {
        AddFilter(HKEY_CLASSES_ROOT, kInstances, name, data);
    }

  private:
    REGSAM view_;
};

Bytes Effect() {
    return marlo::tools::EffectFilterData();
}

/// The registration of an effect whose first GUID lies far outside of the data.
Bytes WithBadOffset() {
    Bytes data = Effect();
    data.at(48) = 0xF0;
    data.at(49) = 0xFF;
    return data;
}

void AddClasses(const Writer& write) {
    write.AddClass(L"{00000000-4D61-726C-6F00-000000000001}", L"T class of that merit");
    write.AddClass(L"{00000000-4D61-726C-6F00-000000000002}", L"T class of another merit",
                   0x00600000);
    write.AddClass(L"{00000000-4D61-726C-6F00-000000000003}", L"");
    write.AddClass(L"{00000000-4D61-726C-6F00-000000000004}", L"mixer2");
    // The last of all classes; the walk ends at the second of them.
    write.AddClass(L"{FFFFFFFF-4D61-726C-6F00-000000000001}", L"T class before the failure");
    write.SetText(HKEY_CLASSES_ROOT,
                  std::wstring(kClasses) + L"{FFFFFFFF-4D61-726C-6F00-000000000002}", L"",
                  L"T class whose merit is a text");
    write.SetText(HKEY_CLASSES_ROOT,
                  std::wstring(kClasses) + L"{FFFFFFFF-4D61-726C-6F00-000000000002}", L"Merit",
                  L"2097152");
    write.AddClass(L"{FFFFFFFF-4D61-726C-6F00-000000000003}", L"T class behind the failure");
}

void AddInstances(const Writer& write) {
    const Pin video = {{kVideo, kNoGuid}};
    write.AddInstance(L"T two audio pins", Effect());
    write.AddInstance(L"T null sub-type", FilterData({AudioPin(), {{kAudio, kNoGuid}}}));
    write.AddInstance(L"T audio on pins 2 and 3", FilterData({video, AudioPin(), AudioPin()}));
    write.AddInstance(L"T audio on pin 1 only", FilterData({AudioPin(), video}));
    write.AddInstance(
        L"T second of two media types",
        FilterData({{{kVideo, kNoGuid}, {kAudio, kPcm}}, {{kVideo, kPcm}, {kAudio, kPcm}}}));
    write.AddInstance(L"T short data", Bytes(20));
    write.AddInstance(L"T bad offsets", WithBadOffset());
    write.AddInstance(L"T no pins", FilterData({}));
    write.AddInstance(L"T data of zeros", Bytes(200));
    write.AddInstance(L"mixer3", Effect());
    write.AddInstance(L"RealPlayer Audio Filter", Effect());
    write.AddInstance(L"T case", Effect());
    write.AddInstance(L"t Case of another spelling", Effect());
    write.AddInstance(L"T R\u00E9verb", Effect());
    write.AddInstance(L"T \u66F2", Effect());
    write.SetText(HKEY_CLASSES_ROOT, std::wstring(kInstances) + L"data as text", L"FriendlyName",
                  L"T data as text");
    write.SetText(HKEY_CLASSES_ROOT, std::wstring(kInstances) + L"data as text", L"FilterData",
                  std::wstring(100, L'x'));
    write.SetText(HKEY_CLASSES_ROOT, std::wstring(kInstances) + L"no data", L"FriendlyName",
                  L"T no data");
}

void AddCache(const Writer& write) {
    write.AddFilter(HKEY_CURRENT_USER, kCache, L"T two audio pins", Effect());
    write.AddFilter(HKEY_CURRENT_USER, kCache, L"T in the cache only", Effect());
    write.AddFilter(HKEY_CURRENT_USER, kCache, L"T CASE", Effect());
}

}  // namespace

int main(int argc, char** argv) {
    const std::string_view view = argc == 2 ? argv[1] : "";
    if (view == "64") {
        const Writer write(KEY_WOW64_64KEY);
        AddClasses(write);
        AddInstances(write);
        AddCache(write);
    } else if (view == "32") {
        const Writer write(KEY_WOW64_32KEY);
        write.AddClass(L"{00000000-4D61-726C-6F00-000000000032}", L"T class of the 32-bit view");
        write.AddInstance(L"T filter of the 32-bit view", Effect());
    } else {
        isWhole = false;
    }
    if (!isWhole)
        std::cerr << "The filters cannot be registered.\n";
    return isWhole ? 0 : 1;
}
