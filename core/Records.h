#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "core/Application.h"

namespace marlo {

/// `value` between two double quotes, as every field of a result file is written. Quotes inside
/// are not escaped.
std::string Quoted(std::string_view value);

/// `values`, each quoted, joined by commas.
std::string QuotedFields(std::initializer_list<std::string_view> values);

/// Splits one line of a result file into its fields.
///
/// The line is split at every comma, inside quotes or not, so a name with a comma in it shifts the
/// fields after it. From each field all double quotes are removed, then the spaces at its ends.
///
/// @param record the line, without its line end.
/// @param fieldCount how many fields the line should have.
/// @return `fieldCount` fields, index 0 first. When the line has fewer, the missing ones are empty
///         and the failure is logged under "SplitRecord: <record> <fieldCount>". A line without
///         any comma has no first field. Nothing at all when there is no room for the fields.
std::vector<std::string> SplitRecord(const Application& application, std::string_view record,
                                     std::int32_t fieldCount);

/// The fields of one record after another, as `SplitRecord` gives them, without making texts of
/// those that stand in the record as they are.
class RecordFields {
  public:
    /// @param fieldCount how many fields a record should have.
    /// @throws RunTimeError when it is negative.
    RecordFields(const Application& application, std::int32_t fieldCount);

    /// Splits a record, which has to stay for as long as its fields are looked at.
    void Split(std::string_view record);

    /// A field of the record, 0-based. Asked for again, it is in the same place.
    std::string_view operator[](std::size_t index);

  private:
    const Application& application_;
    std::vector<std::string_view> raw_;  ///< with the quotes and spaces around them
    std::vector<std::string> cleaned_;   ///< those that are not a part of the record
};

}  // namespace marlo
