#include "base/TextCase.h"

#include "base/Text.h"
#include "support/EnvironmentVariable.h"
#include "support/NamedRow.h"

#include <clocale>

namespace vantrel {
namespace {

using namespace tests;

struct CaseRow : NamedRow {
    std::string text, upper, lower, jobName;
};

const CaseRow rows[] = {
    {"Empty", "", "", "", ""},
    {"Ascii", "Main-1.jbi", "MAIN-1.JBI", "main-1.jbi", "MAIN-1.JBI"},
    {"Accents", "\u00E9\u00C9\u00FF", "\u00C9\u00C9\u0178", "\u00E9\u00E9\u00FF",
     "\u00C9\u00C9\u0178"},
    {"FullWidth", "\uFF21\uFF42", "\uFF21\uFF22", "\uFF41\uFF42", "\uFF21\uFF22"},
    {"Cyrillic", "\u0416\u0436", "\u0416\u0416", "\u0436\u0436", "\u0416\u0416"},
    {"Japanese", "\u30B8\u3087\u8868", "\u30B8\u3087\u8868", "\u30B8\u3087\u8868",
     "\u30B8\u3087\u8868"},
    {"SmallGreekStaysInJobNames", "\u03B1\u03B8\u03C9", "\u0391\u0398\u03A9", "\u03B1\u03B8\u03C9",
     "\u03B1\u03B8\u03C9"},
    {"FinalSigmaIsNotOneOfThem", "\u03C2\u03C3", "\u03A3\u03A3", "\u03C2\u03C3", "\u03A3\u03C3"},
    {"AccentedGreekIsNotOneOfThem", "\u03AC\u03CD", "\u0386\u038E", "\u03AC\u03CD", "\u0386\u038E"},
    {"CapitalGreekStays", "\u0391\u03A9", "\u0391\u03A9", "\u03B1\u03C9", "\u0391\u03A9"},
    {"GreekAmongLatin", "weld\u03B2a.jbi", "WELD\u0392A.JBI", "weld\u03B2a.jbi", "WELD\u03B2A.JBI"},
    {"SharpSStaysOneCharacter", "\u00DF", "\u00DF", "\u00DF", "\u00DF"},
    {"LongS", "\u017F", "S", "\u017F", "S"},
    {"Nul", std::string("a\0b", 3), std::string("A\0B", 3), std::string("a\0b", 3),
     std::string("A\0B", 3)},
    {"InvalidBytesAreReplaced",
     "a\xFF"
     "b\u00E9",
     "A\uFFFDB\u00C9", "a\uFFFDb\u00E9", "A\uFFFDB\u00C9"},
};

class TextCase : public testing::TestWithParam<CaseRow> {};

TEST_P(TextCase, IsMappedOneToOne) {
    EXPECT_EQ(upperCase(GetParam().text), GetParam().upper);
    EXPECT_EQ(lowerCase(GetParam().text), GetParam().lower);
}

TEST_P(TextCase, IsNormalisedForJobNames) {
    EXPECT_EQ(normalisedJobName(GetParam().text), GetParam().jobName);
    EXPECT_EQ(normalisedJobName(GetParam().jobName), GetParam().jobName);
}

INSTANTIATE_TEST_SUITE_P(Rows, TextCase, testing::ValuesIn(rows), rowName);

TEST(JobNames, KeepAllTwentyFourSmallGreekLetters) {
    const std::string greek =
        "\u03B1\u03B2\u03B3\u03B4\u03B5\u03B6\u03B7\u03B8\u03B9\u03BA\u03BB\u03BC\u03BD\u03BE"
        "\u03BF\u03C0\u03C1\u03C3\u03C4\u03C5\u03C6\u03C7\u03C8\u03C9";
    EXPECT_EQ(codePoints(greek).size(), 24u);
    EXPECT_EQ(normalisedJobName(greek), greek);
}

TEST(TextCaseOfEveryCharacter, StaysOneCharacter) {
    std::u32string all;
    for (char32_t character = 1; character < 0x20000; ++character) {
        if (character < 0xD800 || character > 0xDFFF)
            all += character;
    }
    EXPECT_EQ(codePoints(upperCase(utf8(all))).size(), all.size());
    EXPECT_EQ(codePoints(lowerCase(utf8(all))).size(), all.size());
}

TEST(TextCaseInALocale, IsTheSameEverywhere) {
    const EnvironmentVariable turkish("LC_ALL", "tr_TR.UTF-8");
    const std::string old = std::setlocale(LC_ALL, nullptr);
    std::setlocale(LC_ALL, ""); // as a program does at its start; plain "C" if not installed
    EXPECT_EQ(upperCase("title\u00E9"), "TITLE\u00C9");
    EXPECT_EQ(lowerCase("TITLE\u00C9"), "title\u00E9");
    std::setlocale(LC_ALL, old.c_str());
}

} // namespace
} // namespace vantrel
