#include "ui/ColumnFit.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <unordered_map>

#include "core/Text.h"
#include "ui/CellText.h"

namespace marlo {

namespace {

/// The widths of single characters, measured when they first come by.
class CharacterWidths {
  public:
    explicit CharacterWidths(TextMeasure& measure) : measure_(measure) { ascii_.fill(-1); }

    /// About how wide a field is.
    float Estimate(std::string_view field) {
        float width = 0;
        for (const char c : field) {
            const auto byte = static_cast<unsigned char>(c);
            if (byte >= ascii_.size())
                return EstimateDecoded(field);
            if (ascii_[byte] < 0)
                ascii_[byte] = Measured(byte);
            width += ascii_[byte];
        }
        return width;
    }

  private:
    float EstimateDecoded(std::string_view field) {
        float width = 0;
        for (const char32_t character : Decode(field)) {
            const auto [entry, isNew] = others_.try_emplace(character, 0.0F);
            if (isNew)
                entry->second = Measured(character);
            width += entry->second;
        }
        return width;
    }

    /// Many of them are measured, since widths come in whole pixels.
    float Measured(char32_t character) {
        constexpr int count = 20;
        const std::u32string text(count, IsShownAsBlank(character) ? U' ' : character);
        return static_cast<float>(measure_.WidthOf(EncodeUtf8(text))) / count;
    }

    TextMeasure& measure_;
    std::array<float, 0x80> ascii_{};
    std::unordered_map<char32_t, float> others_;
};

/// The cells of a column that look widest.
class WidestFew {
  public:
    void Consider(float estimate, std::string_view text) {
        auto* const narrowest =
            std::min_element(few_.begin(), few_.end(),
                             [](const Cell& a, const Cell& b) { return a.estimate < b.estimate; });
        const bool isThere = std::any_of(few_.begin(), few_.end(),
                                         [&](const Cell& cell) { return cell.text == text; });
        if (!isThere)
            *narrowest = {estimate, text};
        bound_ = std::min_element(few_.begin(), few_.end(), [](const Cell& a, const Cell& b) {
                     return a.estimate < b.estimate;
                 })->estimate;
    }

    /// What is not wider than this is not considered.
    float Bound() const { return bound_; }

    int Measure(TextMeasure& measure) const {
        int widest = 0;
        for (const Cell& cell : few_)
            if (!cell.text.empty())
                widest = std::max(widest, measure.WidthOf(CellText(cell.text)));
        return widest;
    }

  private:
    struct Cell {
        float estimate = 0;
        std::string_view text;
    };

    std::array<Cell, 8> few_{};
    float bound_ = 0;
};

}  // namespace

std::vector<int> WidestCells(const ResultList& list, TextMeasure& measure) {
    CharacterWidths characters(measure);
    std::vector<int> widths;
    for (int column = 1; column <= list.ColumnCount(); ++column) {
        WidestFew widest;
        for (std::size_t position = 1; position <= list.RowCount(); ++position) {
            const ResultRow row = list.RowAt(position);
            const std::string_view text = list.ColumnText(row, column);
            const float estimate = characters.Estimate(ShownPart(text));
            if (estimate > widest.Bound())
                widest.Consider(estimate, text);
        }
        widths.push_back(widest.Measure(measure));
    }
    return widths;
}

}  // namespace marlo
