#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace marlo {

/// Puts texts in the order in which people look for them: by their characters in upper case, then
/// by their characters as they are. Texts that are the same keep their order.
class TextOrder {
  public:
    /// @param count how many texts will be added.
    explicit TextOrder(std::size_t count);

    /// Adds a field, which has to stay until the order is known.
    void Add(std::string_view text);

    /// @param isDescending whether the order is turned round.
    /// @return the numbers of the texts, counted from 0 as they were added, in order.
    std::vector<std::uint32_t> Numbers(bool isDescending);

  private:
    /// A text, with as much of its upper-case form as compares in one step.
    struct Entry {
        std::uint64_t start;
        std::size_t upper;  ///< where its upper-case form is in `upperTexts_`
        std::size_t upperSize;
        std::uint32_t number;
    };

    int Compare(const Entry& left, const Entry& right) const;

    std::vector<std::string_view> texts_;
    std::vector<Entry> entries_;
    std::string upperTexts_;
};

}  // namespace marlo
