// settings.ini with any bytes in it: read, and written to.

#include <array>
#include <string_view>

#include "core/Settings.h"
#include "fuzz/Sandbox.h"

using namespace marlo;

namespace {

/// A record that the end of the file cuts is filled up with zeros once one behind it is written.
std::string WithoutFilling(const std::string& value) {
    constexpr std::string_view filling(" \0", 2);
    return value.substr(0, value.find_last_not_of(filling) + 1);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::Sandbox& sandbox = fuzz::CleanSandbox();
    constexpr std::size_t head = 2;
    if (size < head)
        return 0;
    const auto record = static_cast<std::int16_t>(data[0] | data[1] << 8);
    const auto parts = fuzz::PartsOf(fuzz::TextOf(data + head, size - head), 2);
    sandbox.folder.Write("settings.ini", parts[1]);

    constexpr std::array<std::int16_t, 4> others = {1, 4, 21, 50};
    std::array<std::string, others.size()> before;
    for (std::size_t i = 0; i < others.size(); ++i) {
        before.at(i) = getSetting(sandbox.application, others.at(i));
        fuzz::Require(before.at(i).size() <= kMaxSettingLength, "a setting has a limit");
    }
    const bool isWritten = WriteSetting(sandbox.application, record, parts[0]);
    fuzz::Require(isWritten == (record > 0), "every record can be written");
    if (isWritten && FitsSetting(parts[0]))
        fuzz::Require(getSetting(sandbox.application, record) == parts[0], "what is written stays");
    for (std::size_t i = 0; i < others.size(); ++i)
        if (others.at(i) != record)
            fuzz::Require(WithoutFilling(getSetting(sandbox.application, others.at(i))) ==
                              WithoutFilling(before.at(i)),
                          "the other records stay");
    return 0;
}
