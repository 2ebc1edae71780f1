#include "ui/CellText.h"

#include <algorithm>

#include "core/Text.h"

namespace marlo {

std::string_view ShownPart(std::string_view field) {
    if (field.size() <= kMostCellLength)
        return field;
    constexpr std::size_t longestCharacter = 4;
    std::size_t length = kMostCellLength;
    while (length > kMostCellLength - longestCharacter &&
           platform::ContinuesCharacter(field[length]))
        --length;
    return field.substr(0, length);
}

bool IsShownAsBlank(char32_t character) {
    constexpr char32_t lineSeparator = 0x2028;
    constexpr char32_t paragraphSeparator = 0x2029;
    return character < 0x20 || (character >= 0x7F && character < 0xA0) ||
           character == lineSeparator || character == paragraphSeparator;
}

std::string CellText(std::string_view field) {
    const std::string_view part = ShownPart(field);
    std::u32string text = Decode(part);
    std::replace_if(text.begin(), text.end(), IsShownAsBlank, U' ');
    if (part.size() < field.size())
        text += U'…';
    return EncodeUtf8(text);
}

}  // namespace marlo
