#include "core/Records.h"

#include <algorithm>

#include "core/ErrorLog.h"
#include "core/RunTimeError.h"
#include "core/Text.h"

namespace marlo {

namespace {

std::string CleanField(std::string_view raw) {
    std::string field(raw);
    field.erase(std::remove(field.begin(), field.end(), '"'), field.end());
    return std::string(TrimSpaces(field));
}

void FillFields(std::string_view record, std::vector<std::string>& fields) {
    std::size_t start = 0;
    for (std::size_t i = 0; i < fields.size(); ++i) {
        // The first field needs a comma behind it; the later ones may end with the record.
        if (start > record.size())
            throw RunTimeError(ErrorNumber::InvalidProcedureCall);
        std::size_t end = record.find(',', start);
        if (end == std::string_view::npos) {
            if (i == 0)
                throw RunTimeError(ErrorNumber::InvalidProcedureCall);
            end = record.size();
        }
        fields[i] = CleanField(record.substr(start, end - start));
        start = end + 1;
    }
}

}  // namespace

std::string Quoted(std::string_view value) {
    return QuotedFields({value});
}

std::string QuotedFields(std::initializer_list<std::string_view> values) {
    std::size_t length = 0;
    for (const std::string_view value : values)
        length += value.size() + std::string_view("\"\",").size();
    std::string record;
    record.reserve(length);
    for (const std::string_view value : values) {
        if (!record.empty())
            record += ',';
        record += '"';
        record += value;
        record += '"';
    }
    return record;
}

std::vector<std::string> SplitRecord(const Application& application, std::string_view record,
                                     std::int32_t fieldCount) {
    std::vector<std::string> fields;
    const auto procedure = [&] {
        return "SplitRecord: " + std::string(record) + " " + std::to_string(fieldCount);
    };
    RunGuarded(application, procedure, [&] {
        if (fieldCount < 0)
            throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
        fields.resize(static_cast<std::size_t>(fieldCount));
        FillFields(record, fields);
    });
    return fields;
}

}  // namespace marlo
