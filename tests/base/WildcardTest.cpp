#include "base/Wildcard.h"

#include "support/NamedRow.h"

namespace vantrel {
namespace {

using tests::NamedRow;
using tests::rowName;

struct WildcardRow : NamedRow {
    std::string_view text, pattern;
    bool matches;
};

const WildcardRow rows[] = {
    {"BothEmpty", "", "", true},
    {"EmptyPattern", "a", "", false},
    {"EmptyText", "", "a", false},
    {"Same", "MAIN.JBI", "MAIN.JBI", true},
    {"CaseCounts", "main.jbi", "MAIN.JBI", false},
    {"WholeTextOnly", "MAIN.JBI", "MAIN", false},
    {"PatternLonger", "MAIN", "MAIN.JBI", false},

    {"RunMatchesNothing", "", "*", true},
    {"RunMatchesAll", "anything", "*", true},
    {"RunAtTheStart", "MAIN.JBI", "*.JBI", true},
    {"RunNeedsThePoint", "MAINJBI", "*.JBI", false},
    {"RunAtTheEnd", "MAIN.JBI", "MAIN*", true},
    {"RunInTheMiddle", "A123Z", "A*Z", true},
    {"RunMayBeEmptyInTheMiddle", "AZ", "A*Z", true},
    {"RunGoesBack", "aXbXc", "*Xc", true},
    {"SeveralRuns", "abcbd", "a*b*d", true},
    {"SeveralRunsOutOfOrder", "adcb", "a*b*d", false},
    {"RunsInARow", "ab", "**a**b**", true},
    {"PointMustBeThere", "NOPOINT", "*.*", false},
    {"PointAlone", ".", "*.*", true},

    {"OneCharacter", "A1", "A?", true},
    {"OneCharacterNotNone", "A", "A?", false},
    {"OneCharacterNotTwo", "A12", "A?", false},
    {"OneJapaneseCharacter", "\u30A2B", "?B", true},

    {"Digit", "J7", "J#", true},
    {"DigitNotALetter", "JA", "J#", false},
    {"FullWidthDigitIsNone", "J\uFF17", "J#", false},
    {"HashIsNotItself", "#", "#", false},
    {"HashInBrackets", "#", "[#]", true},

    {"ListHit", "b", "[abc]", true},
    {"ListMiss", "d", "[abc]", false},
    {"RangeInside", "m", "[a-z]", true},
    {"RangeFirst", "a", "[a-z]", true},
    {"RangeLast", "z", "[a-z]", true},
    {"RangeOutside", "M", "[a-z]", false},
    {"TwoRanges", "M", "[a-zA-Z]", true},
    {"RangeAndCharacter", "_", "[0-9_]", true},
    {"ReversedRangeHoldsNothing", "m", "[z-a]", false},
    {"HyphenFirst", "-", "[-a]", true},
    {"HyphenLast", "-", "[a-]", true},
    {"JapaneseRange", "\u3044", "[\u3042-\u304A]", true},
    {"Excluding", "x", "[!abc]", true},
    {"ExcludingHit", "b", "[!abc]", false},
    {"ExcludingRange", "5", "[!0-9]", false},
    {"ExclamationLaterIsItself", "!", "[a!]", true},
    {"ListNeedsACharacter", "", "[abc]", false},
    {"EmptyListHoldsNothing", "a", "[]", false},
    {"NothingExcluded", "a", "[!]", true},
    {"QuestionMarkInBrackets", "?", "[?]", true},
    {"QuestionMarkInBracketsIsPlain", "a", "[?]", false},
    {"StarInBrackets", "*", "[*]", true},
    {"OpeningInBrackets", "[", "[[]", true},

    {"UnclosedIsPlain", "[ab", "[ab", true},
    {"UnclosedIsNoList", "a", "[ab", false},
    {"UnclosedAfterAList", "a[", "[a][", true},
    {"ClosingAloneIsPlain", "]", "]", true},
    {"RunThenList", "JOB-7", "*[0-9]", true},
    {"InvalidBytesAreOneCharacterEach", "\xFF\xFE", "??", true},
    {"NulIsACharacter", {"a\0b", 3}, "a?b", true},
};

class Wildcard : public testing::TestWithParam<WildcardRow> {};

TEST_P(Wildcard, IsMatched) {
    EXPECT_EQ(matchesWildcard(GetParam().text, GetParam().pattern), GetParam().matches);
}

INSTANTIATE_TEST_SUITE_P(Rows, Wildcard, testing::ValuesIn(rows), rowName);

std::string repeated(std::string_view part, int times) {
    std::string text;
    for (int i = 0; i < times; ++i)
        text += part;
    return text;
}

TEST(WildcardPattern, KnowsItsShortestMatch) {
    EXPECT_EQ(WildcardPattern("").shortestMatch(), 0u);
    EXPECT_EQ(WildcardPattern("***").shortestMatch(), 0u);
    EXPECT_EQ(WildcardPattern("a?#[!x-z]*[").shortestMatch(), 5u);
}

TEST(WildcardPattern, IsReadOnceForManyTexts) {
    const WildcardPattern pattern("[A-C]*[!0]#");
    EXPECT_TRUE(pattern.matches(U"Bx7"));
    EXPECT_TRUE(pattern.matches(U"A\u6F22\u5B5717"));
    EXPECT_FALSE(pattern.matches(U"A07"));
    EXPECT_FALSE(pattern.matches(U"B7"));
    EXPECT_FALSE(pattern.matches(U"Dx7"));
}

// A matcher that tries every way to share the text among the runs would not end here.
TEST(WildcardTime, IsBoundedForManyRuns) {
    EXPECT_FALSE(matchesWildcard(std::string(2000, 'a'), repeated("*a", 500) + "b"));
    EXPECT_TRUE(matchesWildcard(std::string(2000, 'a'), repeated("*a", 500)));
}

TEST(WildcardTime, IsBoundedForUnclosedBrackets) {
    const std::string brackets(1'000'000, '[');
    EXPECT_TRUE(matchesWildcard(brackets, brackets));
    EXPECT_FALSE(matchesWildcard("x", brackets + "]"));
}

// Ten million runs in a row are one, and a longer pattern than the text is not tried at all.
TEST(WildcardTime, IsBoundedForLongPatterns) {
    const WildcardPattern runs(std::string(10'000'000, '*') + "Q");
    const WildcardPattern literals("*" + std::string(1'000'000, 'x'));
    for (int i = 0; i < 100'000; ++i) {
        EXPECT_FALSE(runs.matches(U"A.JBI"));
        EXPECT_FALSE(literals.matches(U"xxxxx"));
    }
    EXPECT_TRUE(runs.matches(U"Q"));
}

TEST(WildcardTime, IsBoundedForLongTexts) {
    EXPECT_TRUE(matchesWildcard(std::string(10'000'000, 'x') + ".JBI", "*.JBI"));
}

} // namespace
} // namespace vantrel
