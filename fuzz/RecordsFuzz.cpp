// Lines of the result files: both ways to split them agree, and give clean fields.

#include <cstdint>

#include "core/Records.h"
#include "fuzz/Sandbox.h"

using namespace marlo;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::Sandbox& sandbox = fuzz::CleanSandbox();
    if (size == 0)
        return 0;
    const auto fieldCount = static_cast<std::int32_t>(data[0] % 16) - 1;
    const std::string_view record = fuzz::TextOf(data + 1, size - 1);
    const auto fields = SplitRecord(sandbox.application, record, fieldCount);
    if (fieldCount < 0)
        return 0;
    fuzz::Require(fields.size() == static_cast<std::size_t>(fieldCount), "there are all fields");
    RecordFields same(sandbox.application, fieldCount);
    same.Split(record);
    for (std::size_t i = 0; i < fields.size(); ++i) {
        fuzz::Require(same[i] == fields[i], "both ways agree");
        fuzz::Require(fields[i].find('"') == std::string::npos, "quotes are removed");
        fuzz::Require(!fields[i].starts_with(' ') && !fields[i].ends_with(' '),
                      "fields are trimmed");
    }
    return 0;
}
