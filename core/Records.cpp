#include "core/Records.h"

#include <algorithm>

#include "core/ErrorLog.h"
#include "core/RunTimeError.h"
#include "core/Text.h"

namespace marlo {

namespace {

/// Finds the fields in a record; the last one is what stands before the next comma, if any.
void FindFields(std::string_view record, std::vector<std::string_view>& fields) {
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
        fields[i] = record.substr(start, end - start);
        start = end + 1;
    }
}

bool IsQuotedOnly(std::string_view raw) {
    return raw.size() >= 2 && raw.front() == '"' && raw.find('"', 1) == raw.size() - 1;
}

std::string SplitProcedure(std::string_view record, std::int32_t fieldCount) {
    return "SplitRecord: " + std::string(record) + " " + std::to_string(fieldCount);
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
    const auto procedure = [&] { return SplitProcedure(record, fieldCount); };
    RunGuarded(application, procedure, [&] {
        RecordFields split(application, fieldCount);
        fields.resize(static_cast<std::size_t>(fieldCount));
        split.Split(record);
        for (std::size_t i = 0; i < fields.size(); ++i)
            fields[i] = split[i];
    });
    return fields;
}

RecordFields::RecordFields(const Application& application, std::int32_t fieldCount)
    : application_(application) {
    if (fieldCount < 0)
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
    raw_.resize(static_cast<std::size_t>(fieldCount));
    cleaned_.resize(raw_.size());
}

void RecordFields::Split(std::string_view record) {
    std::fill(raw_.begin(), raw_.end(), std::string_view());
    const auto procedure = [&] {
        return SplitProcedure(record, static_cast<std::int32_t>(raw_.size()));
    };
    RunGuarded(application_, procedure, [&] { FindFields(record, raw_); });
}

std::string_view RecordFields::operator[](std::size_t index) {
    const std::string_view raw = raw_[index];
    if (IsQuotedOnly(raw))
        return TrimSpaces(raw.substr(1, raw.size() - 2));
    std::string& cleaned = cleaned_[index];
    cleaned = raw;
    cleaned.erase(std::remove(cleaned.begin(), cleaned.end(), '"'), cleaned.end());
    return TrimSpaces(cleaned);
}

}  // namespace marlo
