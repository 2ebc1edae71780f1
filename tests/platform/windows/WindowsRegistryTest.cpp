#include <array>
#include <cstdint>
#include <string>
#include <vector>
#include <windows.h>

#include <gtest/gtest.h>

#include "platform/Machine.h"

namespace marlo::platform {
namespace {

using namespace registry_result;

/// A class with values, another one for each test that runs at the same time; deleted with
/// everything below it at the end of the test.
class WindowsRegistryTest : public testing::Test {
  protected:
    ~WindowsRegistryTest() override { RegDeleteTreeA(HKEY_CLASSES_ROOT, testKey.c_str()); }

    void MakeKey(const std::wstring& below = L"", const wchar_t* value = nullptr,
                 const std::wstring& text = L"") const {
        const std::wstring path =
            std::wstring(testKey.begin(), testKey.end()) + (below.empty() ? L"" : L"\\" + below);
        HKEY key = nullptr;
        ASSERT_EQ(RegCreateKeyExW(HKEY_CLASSES_ROOT, path.c_str(), 0, nullptr, 0, KEY_WRITE,
                                  nullptr, &key, nullptr),
                  ERROR_SUCCESS);
        if (value != nullptr)
            RegSetValueExW(key, value, 0, REG_SZ, reinterpret_cast<const BYTE*>(text.c_str()),
                           static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
        RegCloseKey(key);
    }

    /// A value of the test's key with its final NUL; "none" without one.
    std::string Read(const std::string& name, const std::string& below = "") const {
        RegistryKey key = 0;
        if (SystemRegistry().OpenKey(kClassesRoot, testKey + below, key) != kSuccess)
            return "no key";
        std::int32_t type = 0;
        std::uint32_t length = 0;
        std::vector<unsigned char> buffer(100);
        const std::int32_t answer = SystemRegistry().QueryValue(key, name, type, buffer, length);
        SystemRegistry().CloseKey(key);
        return answer == kSuccess ? std::string(buffer.begin(), buffer.begin() + length) : "none";
    }

    /// The names of the keys below the test's key, in order.
    std::vector<std::string> Names() const {
        RegistryKey key = 0;
        std::uint32_t count = 0;
        std::uint32_t longest = 0;
        EXPECT_EQ(SystemRegistry().OpenKey(kClassesRoot, testKey, key), kSuccess);
        EXPECT_EQ(SystemRegistry().QueryInfo(key, count, longest), kSuccess);
        std::vector<std::string> names;
        std::vector<char> buffer(longest + 1);
        for (std::uint32_t i = 0; i < count; ++i) {
            std::uint32_t length = 0;
            EXPECT_EQ(SystemRegistry().EnumerateKey(key, i, buffer, length), kSuccess);
            names.emplace_back(buffer.data(), length);
        }
        std::uint32_t length = 0;
        EXPECT_EQ(SystemRegistry().EnumerateKey(key, count, buffer, length), kNoMoreItems);
        SystemRegistry().CloseKey(key);
        return names;
    }

    const std::string testKey = "MarloTest" + std::to_string(GetCurrentProcessId());
};

TEST_F(WindowsRegistryTest, NamesAndTextsAreInTheAnsiPageWhereTheyFit) {
    MakeKey(L"", L"R\u00E9verb", L"\u00C9cho");
    MakeKey(L"", L"\u66F2", L"\u66F2 \u00E9");
    EXPECT_EQ(Read("R\xE9verb"), std::string("\xC9"
                                             "cho",
                                             4) +
                                     '\0');
    EXPECT_EQ(Read("曲"), std::string("曲 é") + '\0');
    EXPECT_EQ(Read("gone"), "none");
}

TEST_F(WindowsRegistryTest, KeysAreCountedAndNamedInOrder) {
    for (const wchar_t* const name : {L"b", L"A", L"R\u00E9verb", L"\u66F2"})
        MakeKey(name, L"", L"x");
    EXPECT_EQ(Names(), (std::vector<std::string>{"A", "b", "R\xE9verb", "曲"}));
    EXPECT_EQ(Read("", "\\R\xE9verb"), std::string("x") + '\0');
}

TEST_F(WindowsRegistryTest, AnAbsentKeyIsNotFound) {
    RegistryKey key = 0;
    EXPECT_EQ(SystemRegistry().OpenKey(kClassesRoot, testKey, key), kFileNotFound);
}

}  // namespace
}  // namespace marlo::platform
