#include <string>

#include <gtest/gtest.h>

#include "ui/CellText.h"

namespace marlo {
namespace {

TEST(CellTextTest, AFieldOfUsualLengthIsShownWhole) {
    for (const std::string& field :
         {std::string(), std::string("Réverb 曲 🎹"), std::string(kMostCellLength, 'x')})
        EXPECT_EQ(CellText(field), field);
    EXPECT_EQ(CellText("R\xE9verb"), "Réverb");
}

TEST(CellTextTest, WhatIsLongerIsCut) {
    const std::string start(kMostCellLength, 'x');
    EXPECT_EQ(CellText(start + "y"), start + "…");
    std::string longer = start;
    longer.resize(10'000'000, 'y');
    EXPECT_EQ(CellText(longer), start + "…");
}

TEST(CellTextTest, NoCharacterIsCutInTwo) {
    for (const std::string character : {"é", "曲", "🎹"})
        for (std::size_t room = 1; room < character.size(); ++room) {
            const std::string start(kMostCellLength - room, 'x');
            EXPECT_EQ(CellText(start + character + "y"), start + "…") << character << room;
        }
}

TEST(CellTextTest, TextThatIsNotUtf8IsCutToo) {
    const std::string cut = CellText(std::string(kMostCellLength + 1, '\x80'));
    EXPECT_TRUE(cut.ends_with("€…")) << cut;
}

TEST(CellTextTest, WhatWouldEndTheLineIsABlank) {
    EXPECT_EQ(CellText(std::string("a\0b\nc\rd\te\x1B[2Jf\x7F", 15)), "a b c d e [2Jf ");
    EXPECT_EQ(CellText("a\u0085b\u2028c\u2029d"), "a b c d");
}

}  // namespace
}  // namespace marlo
