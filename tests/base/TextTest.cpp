#include "base/Text.h"

#include "support/NamedRow.h"

namespace vantrel {
namespace {

using tests::NamedRow;
using tests::rowName;
using Pieces = std::vector<std::string_view>;

TEST(Trimmed, TakesOuterBlanksAway) {
    EXPECT_EQ(trimmed(" \t a b \r\n"), "a b");
    EXPECT_EQ(trimmed(""), "");
    EXPECT_EQ(trimmed("  "), "");
}

TEST(Trimmed, TakesOtherCharactersWhenTold) {
    EXPECT_EQ(trimmed("--a-b--", "-"), "a-b");
    EXPECT_EQ(trimmed("\ta ", " "), "\ta");
}

TEST(AsciiCase, ChangesAsciiLettersOnly) {
    EXPECT_EQ(asciiUpper("az AZ 09 [`{ \xE3\x81\x82 \xE9"), "AZ AZ 09 [`{ \xE3\x81\x82 \xE9");
    EXPECT_EQ(asciiLower("az AZ 09 @[ \xC3\x89"), "az az 09 @[ \xC3\x89");
}

TEST(AsciiCase, IsIgnoredInTheComparison) {
    EXPECT_TRUE(equalsIgnoringAsciiCase("Main.JBI", "mAIN.jbi"));
    EXPECT_FALSE(equalsIgnoringAsciiCase("Main", "Mai"));
    EXPECT_FALSE(equalsIgnoringAsciiCase("@", "`"));
    EXPECT_TRUE(equalsIgnoringAsciiCase("", ""));
}

TEST(Split, GivesAllPieces) {
    EXPECT_EQ(split("a,b,c", ','), (Pieces{"a", "b", "c"}));
    EXPECT_EQ(split(",a,,", ','), (Pieces{"", "a", "", ""}));
    EXPECT_EQ(split("abc", ','), (Pieces{"abc"}));
}

TEST(Split, GivesOneEmptyPieceForAnEmptyText) {
    EXPECT_EQ(split("", ','), (Pieces{""}));
}

struct LinesRow : NamedRow {
    std::string_view text;
    Pieces expected;
};

const LinesRow linesRows[] = {
    {"Empty", "", {}},
    {"OneWithoutEnd", "a", {"a"}},
    {"WindowsEnds", "a\r\nb\r\n", {"a", "b"}},
    {"UnixEnds", "a\nb\n", {"a", "b"}},
    {"OldMacEnds", "a\rb\r", {"a", "b"}},
    {"MixedEnds", "a\r\nb\nc\rd", {"a", "b", "c", "d"}},
    {"EmptyLines", "\n\r\n\r", {"", "", ""}},
    {"ReversedPairIsTwoEnds", "a\n\rb", {"a", "", "b"}},
    {"NulIsAnOrdinaryCharacter", {"a\0b\n", 4}, {{"a\0b", 3}}},
};

class Lines : public testing::TestWithParam<LinesRow> {};

TEST_P(Lines, AreTakenApart) {
    EXPECT_EQ(lines(GetParam().text), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Rows, Lines, testing::ValuesIn(linesRows), rowName);

TEST(TakeLine, LeavesTheRest) {
    std::string_view rest = "a\r\nb";
    EXPECT_EQ(takeLine(rest), "a");
    EXPECT_EQ(takeLine(rest), "b");
    EXPECT_TRUE(rest.empty());
}

struct Utf8Row : NamedRow {
    std::string bytes;
    std::u32string expected;
    bool isValid;
};

const Utf8Row utf8Rows[] = {
    {"Empty", "", U"", true},
    {"Ascii", "aZ~", U"aZ~", true},
    {"Nul", std::string(1, '\0'), std::u32string(1, U'\0'), true},
    {"TwoBytes", "\xCE\xB1", U"\u03B1", true},
    {"ThreeBytes", "\xE3\x81\x82", U"\u3042", true},
    {"FourBytes", "\xF0\x9F\xA4\x96", U"\U0001F916", true},
    {"Last", "\xF4\x8F\xBF\xBF", U"\U0010FFFF", true},
    {"ReplacementItself", "\xEF\xBF\xBD", U"\uFFFD", true},
    {"StrayContinuation",
     "\x80"
     "a",
     U"\uFFFDa", false},
    {"OverlongTwo", "\xC0\xAF", U"\uFFFD\uFFFD", false},
    {"OverlongThree", "\xE0\x80\xAF", U"\uFFFD\uFFFD\uFFFD", false},
    {"OverlongFour", "\xF0\x80\x80\xAF", U"\uFFFD\uFFFD\uFFFD\uFFFD", false},
    {"Surrogate", "\xED\xA0\x80", U"\uFFFD\uFFFD\uFFFD", false},
    {"PastTheLast", "\xF4\x90\x80\x80", U"\uFFFD\uFFFD\uFFFD\uFFFD", false},
    {"FiveByteForm", "\xF8", U"\uFFFD", false},
    {"CutAtTheEnd", "a\xE3\x81", U"a\uFFFD\uFFFD", false},
    {"CutBeforeALetter",
     "\xE3"
     "A\xE3\x81\x82",
     U"\uFFFDA\u3042", false},
};

class Utf8 : public testing::TestWithParam<Utf8Row> {};

TEST_P(Utf8, IsDecodedStrictly) {
    EXPECT_EQ(codePoints(GetParam().bytes), GetParam().expected);
    EXPECT_EQ(isValidUtf8(GetParam().bytes), GetParam().isValid);
}

TEST_P(Utf8, IsEncodedBack) {
    const std::string back = utf8(GetParam().expected);
    EXPECT_TRUE(isValidUtf8(back));
    EXPECT_EQ(back == GetParam().bytes, GetParam().isValid);
}

INSTANTIATE_TEST_SUITE_P(Rows, Utf8, testing::ValuesIn(utf8Rows), rowName);

TEST(Utf8Encoding, ReplacesWhatIsNoCharacter) {
    const std::u32string wrong{0xD800, 0xDFFF, 0x110000, 0xFFFFFFFF, U'a'};
    EXPECT_EQ(utf8(wrong), "\uFFFD\uFFFD\uFFFD\uFFFDa");
}

TEST(Utf8Encoding, IsTheSameForEveryCharacterThereAndBack) {
    std::u32string all;
    for (char32_t character = 0; character <= 0x10FFFF; ++character) {
        if (character < 0xD800 || character > 0xDFFF)
            all += character;
    }
    EXPECT_TRUE(codePoints(utf8(all)) == all);
}

TEST(FirstCharacters, AreNeverCutInTwo) {
    EXPECT_EQ(firstCharacters("abc", 0), "");
    EXPECT_EQ(firstCharacters("abc", 2), "ab");
    EXPECT_EQ(firstCharacters("abc", 9), "abc");
    EXPECT_EQ(firstCharacters("\u6F22\u5B57x", 2), "\u6F22\u5B57");
    EXPECT_EQ(firstCharacters("\U0001F916x", 1), "\U0001F916");
    EXPECT_EQ(firstCharacters("", 3), "");
}

TEST(OneLine, HoldsNothingThatCannotBeShown) {
    EXPECT_EQ(onOneLine("A B.JBI"), "A B.JBI");
    EXPECT_EQ(onOneLine("\u6F22\uFF71"), "\u6F22\uFF71");
    EXPECT_EQ(onOneLine({"a\0b", 3}), "a\uFFFDb");
    for (const char* hidden : {"\n", "\r", "\t", "\x1B", "\x7F", "\u0085", "\u200E", "\u200F",
                               "\u2028", "\u2029", "\u202E", "\u2066", "\u2069"})
        EXPECT_EQ(onOneLine("a" + std::string(hidden) + "b"), "a\uFFFDb");
    for (const char* shown : {" ", "~", "\u00A0", "\u200D", "\u2027", "\u202F", "\u2065", "\u206A"})
        EXPECT_EQ(onOneLine(shown), shown);
}

TEST(Ascii, IsSevenBitsWide) {
    for (std::size_t length = 0; length < 20; ++length) {
        EXPECT_TRUE(isAscii(std::string(length, 'a')));
        EXPECT_FALSE(isAscii(std::string(length, 'a') + "\x80"));
        EXPECT_FALSE(isValidUtf8(std::string(length, 'a') + "\x80"
                                                            "abcdefghij"));
    }
    EXPECT_TRUE(isAscii({"a\0~\x7F", 4}));
    EXPECT_FALSE(isAscii("a\x80"));
    EXPECT_TRUE(isAscii(""));
}

TEST(TextFromGarbage, TakesTenMegabytes) {
    const std::string garbage(10'000'000, '\xE3');
    EXPECT_EQ(codePoints(garbage).size(), garbage.size());
    EXPECT_EQ(lines(garbage).size(), 1u);
    EXPECT_EQ(lines(std::string(10'000'000, '\r')).size(), 10'000'000u);
    EXPECT_EQ(split(std::string(10'000'000, ','), ',').size(), 10'000'001u);
}

} // namespace
} // namespace vantrel
