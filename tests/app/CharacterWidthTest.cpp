#include "app/viewer/PrintPages.h"
#include "support/NamedRow.h"

namespace vantrel::tests {
namespace {

struct WidthRow : NamedRow {
    char32_t character;
    int width;
};

class CharacterWidthTest : public testing::TestWithParam<WidthRow> {};

INSTANTIATE_TEST_SUITE_P(
    Rows, CharacterWidthTest,
    testing::Values(WidthRow{{"Letter"}, U'A', 1}, WidthRow{{"AccentedLetter"}, U'é', 1},
                    WidthRow{{"ReplacementCharacter"}, U'\uFFFD', 1},
                    WidthRow{{"Hiragana"}, U'あ', 2}, WidthRow{{"Kanji"}, U'開', 2},
                    WidthRow{{"IdeographicBlank"}, U'\u3000', 2},
                    WidthRow{{"FullWidthLetter"}, U'Ａ', 2},
                    WidthRow{{"HalfWidthKatakana"}, U'ｱ', 1},
                    WidthRow{{"HalfWidthVoiceMark"}, U'ﾞ', 1}, WidthRow{{"Hangul"}, U'한', 2},
                    WidthRow{{"BelowTheWideOnes"}, 0x10FF, 1},
                    WidthRow{{"LastOfARange"}, 0x115F, 2}, WidthRow{{"AfterARange"}, 0x1160, 1},
                    WidthRow{{"RareKanji"}, U'𠮷', 2}, WidthRow{{"Accent"}, 0x0301, 0},
                    WidthRow{{"VoiceMark"}, 0x3099, 0}, WidthRow{{"LastCharacter"}, 0x10FFFF, 1}),
    rowName);

TEST_P(CharacterWidthTest, InColumns) {
    EXPECT_EQ(characterWidth(GetParam().character), GetParam().width);
}

} // namespace
} // namespace vantrel::tests
