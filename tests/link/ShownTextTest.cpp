#include "link/ShownText.h"

#include "support/NamedRow.h"

#include <gtest/gtest.h>

namespace vantrel {
namespace {

std::string repeated(const char* character, int count) {
    std::string text;
    for (int i = 0; i < count; ++i)
        text += character;
    return text;
}
std::string kanji(int count) {
    return repeated("\u6F22", count);
}
std::string replaced(int count) {
    return repeated("\uFFFD", count);
}

struct TextRow : tests::NamedRow {
    std::string text;
    std::string shown;
};

class ShownTextTest : public testing::TestWithParam<TextRow> {};

TEST_P(ShownTextTest, IsOneLineOfTwoHundredCharactersAtMost) {
    EXPECT_EQ(shownText(GetParam().text), GetParam().shown);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, ShownTextTest,
    testing::Values(
        TextRow{{"Empty"}, "", ""}, TextRow{{"Short"}, "A.JBI", "A.JBI"},
        TextRow{{"JustFits"}, std::string(200, 'x'), std::string(200, 'x')},
        TextRow{{"OneTooMany"}, std::string(201, 'x'), std::string(200, 'x') + "\u2026"},
        TextRow{{"TenMegabytes"}, std::string(10'000'000, 'x'), std::string(200, 'x') + "\u2026"},
        TextRow{{"CharactersOfManyBytes"}, kanji(200), kanji(200)},
        TextRow{{"LineEnds"}, "A\r\nB\x1B.JBI", "A\uFFFD\uFFFDB\uFFFD.JBI"},
        TextRow{{"ManyLineEnds"}, std::string(250, '\n'), replaced(200) + "\u2026"},
        TextRow{{"NoHalfCharacter"}, kanji(201), kanji(200) + "\u2026"}),
    tests::rowName);

} // namespace
} // namespace vantrel
