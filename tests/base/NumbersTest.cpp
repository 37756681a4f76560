#include "base/Numbers.h"

#include "support/NamedRow.h"

#include <cfenv>
#include <clocale>
#include <cmath>
#include <limits>
#include <optional>
#include <random>

namespace vantrel {
namespace {

using tests::NamedRow;
using tests::rowName;

constexpr double largest = std::numeric_limits<double>::max();

struct LeadingRow : NamedRow {
    std::string text;
    double expected;
};

const LeadingRow leadingRows[] = {
    {"Empty", "", 0},
    {"BlanksOnly", " \t ", 0},
    {"Plain", "42", 42},
    {"TextBehindIsIgnored", "1abc", 1},
    {"LeadingBlankAndTail", " 42A9", 42},
    {"TextFirstIsNoNumber", "B42", 0},
    {"Minus", "-1", -1},
    {"Plus", "+1", 1},
    {"TwoSigns", "+-1", 0},
    {"SignAlone", "-", 0},
    {"SignThenBlank", "- 1", 0},
    {"Fraction", "1399.75", 1399.75},
    {"PointFirst", ".5", 0.5},
    {"NegativePointFirst", "-.5x", -0.5},
    {"PointLast", "5.", 5},
    {"PointAlone", ".", 0},
    {"SecondPointEnds", "1.2.3", 1.2},
    {"Exponent", "1.5e3", 1500},
    {"UpperExponentWithSign", "2E-2", 0.02},
    {"UnfinishedExponent", "5e", 5},
    {"UnfinishedSignedExponent", "5e+", 5},
    {"CommaIsNoPoint", "1,5", 1},
    {"HexadecimalIsNone", "0x1F", 0},
    {"InfinityIsNone", "inf", 0},
    {"NanIsNone", "nan", 0},
    {"TooLargeIsTheLargest", "1e999", largest},
    {"TooLargeNegative", "-1e999", -largest},
    {"TooLargeWithoutExponent", std::string(400, '9'), largest},
    {"HugeExponent", "1e99999999999999999999999999", largest},
    {"TooSmallIsZero", "1e-999", 0},
    {"TooSmallWithoutExponent", "0." + std::string(400, '0') + "1", 0},
    {"TooSmallInSpiteOfItsExponent", "0." + std::string(400, '0') + "1e10", 0},
    {"ZeroOfAnyExponent", "0e999", 0},
    {"NulEnds", std::string("4\0002", 3), 4},
};

class LeadingNumber : public testing::TestWithParam<LeadingRow> {};

TEST_P(LeadingNumber, IsReadAsFarAsItGoes) {
    EXPECT_EQ(leadingNumber(GetParam().text), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Rows, LeadingNumber, testing::ValuesIn(leadingRows), rowName);

TEST(LeadingInteger, IsCutOffAtThePoint) {
    EXPECT_EQ(leadingInteger16("7.99"), 7);
    EXPECT_EQ(leadingInteger16("-7.99"), -7);
    EXPECT_EQ(leadingInteger32("2147483646.9"), 2147483646);
}

TEST(LeadingInteger, IsHeldWithinItsType) {
    EXPECT_EQ(leadingInteger16("32768"), 32767);
    EXPECT_EQ(leadingInteger16("-99999"), -32768);
    EXPECT_EQ(leadingInteger32("2147483648"), 2147483647);
    EXPECT_EQ(leadingInteger32("-1e300"), std::numeric_limits<std::int32_t>::min());
}

struct WholeRow : NamedRow {
    std::string text;
    std::optional<double> expected;
};

const WholeRow wholeRows[] = {
    {"Plain", "12", 12.0},
    {"OuterBlanks", " \t12.5 ", 12.5},
    {"Plus", "+3", 3.0},
    {"Exponent", "1e2", 100.0},
    {"TooSmallIsZero", "1e-999", 0.0},
    {"Empty", "", std::nullopt},
    {"Blank", " ", std::nullopt},
    {"Tail", "12a", std::nullopt},
    {"InnerBlank", "1 2", std::nullopt},
    {"Word", "abc", std::nullopt},
    {"Infinity", "inf", std::nullopt},
    {"SignAlone", "-", std::nullopt},
    {"TooLarge", "1e999", std::nullopt},
    {"Nul", std::string("1\0", 2), std::nullopt},
};

class WholeNumber : public testing::TestWithParam<WholeRow> {};

TEST_P(WholeNumber, TakesTheWholeTextOrNothing) {
    EXPECT_EQ(wholeNumber(GetParam().text), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Rows, WholeNumber, testing::ValuesIn(wholeRows), rowName);

struct RoundedRow : NamedRow {
    double value;
    std::optional<std::int32_t> expected;
};

const RoundedRow roundedRows[] = {
    {"Whole", 7, 7},
    {"Down", 700.158, 700},
    {"Up", 1399.75, 1400},
    {"HalfToEvenBelow", 0.5, 0},
    {"HalfToEvenAbove", 1.5, 2},
    {"HalfToEvenBelowAgain", 2.5, 2},
    {"NegativeHalf", -0.5, 0},
    {"NegativeHalfToEven", -1.5, -2},
    {"NegativeHalfToEvenAgain", -2.5, -2},
    {"Negative", -1.2, -1},
    {"JustBelowAHalf", 0.49999999999999994, 0},
    {"Highest", 2147483647.4, 2147483647},
    {"PastTheHighest", 2147483647.5, std::nullopt},
    {"Lowest", -2147483648.5, std::numeric_limits<std::int32_t>::min()},
    {"PastTheLowest", -2147483648.6, std::nullopt},
    {"FarOut", 1e300, std::nullopt},
    {"Infinity", std::numeric_limits<double>::infinity(), std::nullopt},
    {"NoNumber", std::numeric_limits<double>::quiet_NaN(), std::nullopt},
};

class Rounded : public testing::TestWithParam<RoundedRow> {};

TEST_P(Rounded, GoesToTheNearest) {
    EXPECT_EQ(rounded32(GetParam().value), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Rows, Rounded, testing::ValuesIn(roundedRows), rowName);

TEST(RoundedNumber, DoesNotDependOnTheProcessorsRoundingMode) {
    std::fesetround(FE_UPWARD);
    const auto rounded = rounded32(1.25);
    std::fesetround(FE_TONEAREST);
    EXPECT_EQ(rounded, 1);
}

struct GeneralRow : NamedRow {
    double value;
    const char* expected;
};

const GeneralRow generalRows[] = {
    {"Zero", 0, "0"},
    {"NegativeZero", -0.0, "0"},
    {"Whole", 12, "12"},
    {"Negative", -0.5, "-0.5"},
    {"Fraction", 1399.75, "1399.75"},
    {"Shortest", 0.1, "0.1"},
    {"HundredThousand", 100000, "100000"},
    {"Million", 1e6, "1000000"},
    {"LargestWithoutExponent", 999999999999999, "999999999999999"},
    {"VeryLarge", 1e15, "1e+15"},
    {"Small", 0.0000001, "0.0000001"},
    {"VerySmall", 0.00000001, "1e-08"},
    {"FloatThird", 1.0 / 3, "0.3333333333333333"},
};

class GeneralText : public testing::TestWithParam<GeneralRow> {};

TEST_P(GeneralText, IsTheShortestThatReadsBack) {
    EXPECT_EQ(generalText(GetParam().value), GetParam().expected);
    EXPECT_EQ(wholeNumber(GetParam().expected), GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(Rows, GeneralText, testing::ValuesIn(generalRows), rowName);

struct TruthRow : NamedRow {
    std::string text;
    std::optional<bool> expected;
};

const TruthRow truthRows[] = {
    {"True", "True", true},
    {"False", "False", false},
    {"AnyLetterCase", "tRUE", true},
    {"FalseInAnyLetterCase", "FALSE", false},
    {"OuterBlanks", " True\t", true},
    {"MinusOne", "-1", true},
    {"Zero", "0", false},
    {"ZeroWithAFraction", " 0.0 ", false},
    {"Fraction", "0.5", true},
    {"OutOfRange", "99999", true},
    {"BeyondEveryNumber", "-1e999", true},
    {"Empty", "", std::nullopt},
    {"OtherWord", "yes", std::nullopt},
    {"WordWithATail", "Truely", std::nullopt},
    {"NumberWithATail", "1 x", std::nullopt},
    {"Nul", std::string("True\0", 5), std::nullopt},
};

class TruthValue : public testing::TestWithParam<TruthRow> {};

TEST_P(TruthValue, IsAWordOrANumber) {
    EXPECT_EQ(truthValue(GetParam().text), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Rows, TruthValue, testing::ValuesIn(truthRows), rowName);

TEST(GeneralNumberText, ReadsBackForAnyValue) {
    std::mt19937_64 random(20261120);
    std::uniform_real_distribution<double> digits(-10, 10);
    std::uniform_int_distribution<int> exponents(-300, 300);
    for (int i = 0; i < 2000; ++i) {
        const double value = digits(random) * std::pow(10.0, exponents(random));
        EXPECT_EQ(wholeNumber(generalText(value)), value) << generalText(value);
    }
}

/// Puts the old locale back at its end.
class LocaleInForce {
  public:
    explicit LocaleInForce(const char* name) : old_(std::setlocale(LC_ALL, nullptr)) {
        std::setlocale(LC_ALL, name);
    }
    ~LocaleInForce() { std::setlocale(LC_ALL, old_.c_str()); }

  private:
    std::string old_;
};

TEST(NumbersInALocale, KeepThePointAsDecimalSign) {
    const LocaleInForce german("de_DE.UTF-8"); // without effect where it is not installed
    EXPECT_EQ(leadingNumber("1.5"), 1.5);
    EXPECT_EQ(leadingNumber("1,5"), 1);
    EXPECT_EQ(generalText(1.5), "1.5");
}

TEST(NumbersFromGarbage, TakeVeryLongTexts) {
    const std::string digits(10'000'000, '7');
    EXPECT_EQ(leadingNumber(digits), largest);
    EXPECT_EQ(leadingNumber("0." + digits), 7.0 / 9);
    EXPECT_EQ(leadingInteger32(std::string(10'000'000, ' ') + "5"), 5);
    EXPECT_EQ(leadingNumber("1e" + digits), largest);
    EXPECT_FALSE(wholeNumber(std::string(10'000'000, '-')));
}

TEST(NumbersFromGarbage, TakeAnyBytes) {
    std::mt19937 random(7);
    const std::string alphabet("0123456789+-.eE \t\0x\xFF", 20);
    std::uniform_int_distribution<std::size_t> any(0, alphabet.size() - 1);
    for (int i = 0; i < 5000; ++i) {
        std::string text;
        for (int length = i % 12; length > 0; --length)
            text += alphabet[any(random)];
        EXPECT_TRUE(std::isfinite(leadingNumber(text))) << text;
        EXPECT_EQ(wholeNumber(text).value_or(leadingNumber(text)), leadingNumber(text)) << text;
    }
}

} // namespace
} // namespace vantrel
