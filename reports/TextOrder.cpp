#include "reports/TextOrder.h"

#include <algorithm>

#include "core/Text.h"

namespace marlo {

namespace {

/// The first eight bytes of a text, as a number that compares as they do.
std::uint64_t StartOf(std::string_view text) {
    std::uint64_t start = 0;
    for (std::size_t i = 0; i < sizeof start; ++i)
        start = (start << 8U) | (i < text.size() ? static_cast<unsigned char>(text[i]) : 0U);
    return start;
}

}  // namespace

TextOrder::TextOrder(std::size_t count) {
    texts_.reserve(count);
    entries_.reserve(count);
}

void TextOrder::Add(std::string_view text) {
    const std::string upper = UpperCaseUtf8(text);
    entries_.push_back({StartOf(upper), upperTexts_.size(), upper.size(),
                        static_cast<std::uint32_t>(texts_.size())});
    upperTexts_ += upper;
    texts_.push_back(text);
}

int TextOrder::Compare(const Entry& left, const Entry& right) const {
    if (left.start != right.start)
        return left.start < right.start ? -1 : 1;
    const std::string_view upperTexts = upperTexts_;
    const int difference = upperTexts.substr(left.upper, left.upperSize)
                               .compare(upperTexts.substr(right.upper, right.upperSize));
    if (difference != 0 || texts_[left.number] == texts_[right.number])
        return difference;
    return Decode(texts_[left.number]).compare(Decode(texts_[right.number]));
}

std::vector<std::uint32_t> TextOrder::Numbers(bool isDescending) {
    std::sort(entries_.begin(), entries_.end(), [&](const Entry& left, const Entry& right) {
        const int difference = Compare(left, right);
        if (difference == 0)
            return left.number < right.number;
        return isDescending ? difference > 0 : difference < 0;
    });
    std::vector<std::uint32_t> numbers;
    numbers.reserve(entries_.size());
    for (const Entry& entry : entries_)
        numbers.push_back(entry.number);
    return numbers;
}

}  // namespace marlo
