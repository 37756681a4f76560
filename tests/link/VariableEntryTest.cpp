#include "link/VariableEntry.h"

#include "support/NamedRow.h"

#include <cmath>

#include <gtest/gtest.h>

namespace vantrel {
namespace {

struct ParseRow : tests::NamedRow {
    const char* line;
    std::int16_t kind;
    std::int16_t number;
    const char* formatted;
};

class ParsedEntryTest : public testing::TestWithParam<ParseRow> {};

TEST_P(ParsedEntryTest, GivesKindNumberAndCanonicalText) {
    const auto entry = VariableEntry::parse(GetParam().line);
    ASSERT_TRUE(entry);
    EXPECT_EQ(entry->kind, GetParam().kind);
    EXPECT_EQ(entry->number, GetParam().number);
    EXPECT_EQ(entry->format(), GetParam().formatted);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ParsedEntryTest,
    testing::Values(
        ParseRow{"B", "B005=12", 0, 5, "B005=12"}, ParseRow{"I", "I1=-3", 1, 1, "I001=-3"},
        ParseRow{"D", "D1=70000", 2, 1, "D001=70000"}, ParseRow{"R", "R2=0.1", 3, 2, "R002=0.1"},
        ParseRow{"P", "P3=1,2,3,4,5,6,7,8,9", 4, 3, "P003=1,2,3,4,5,6,7,8,9"},
        ParseRow{"LowerCaseBP", "bp3=1,2,3", 5, 3, "BP003=1,2,3,0,0,0,0,0,0"},
        ParseRow{"EX", "EX12=1", 6, 12, "EX012=1,0,0,0,0,0,0,0,0"},
        ParseRow{"LowerCaseE", "ex1=1", 6, 1, "EX001=1,0,0,0,0,0,0,0,0"},
        ParseRow{"AnySecondCharacter", "EP7=1", 6, 7, "EX007=1,0,0,0,0,0,0,0,0"},
        ParseRow{"SecondCharacterOfThreeBytes",
                 "E\xE3\x82\xBD"
                 "7=1",
                 6, 7, "EX007=1,0,0,0,0,0,0,0,0"},
        ParseRow{"SecondCharacterIsADigit", "E17=1", 6, 7, "EX007=1,0,0,0,0,0,0,0,0"},
        ParseRow{"ShortNumber", "B7=1", 0, 7, "B007=1"},
        ParseRow{"LongNumber", "B1234=1", 0, 1234, "B1234=1"},
        ParseRow{"LargestNumber", "B32767=1", 0, 32767, "B32767=1"},
        ParseRow{"NoNumber", "B=1", 0, 0, "B000=1"}, ParseRow{"NoValue", "B1=", 0, 1, "B001=0"},
        ParseRow{"EmptyValues", "P1=,,3", 4, 1, "P001=0,0,3,0,0,0,0,0,0"},
        ParseRow{"Blanks", "B 5 = 12 ", 0, 5, "B005=12"},
        ParseRow{"TenValues", "P1=1,2,3,4,5,6,7,8,9,10", 4, 1, "P001=1,2,3,4,5,6,7,8,9"},
        ParseRow{"MoreValuesThanWritten", "B1=1,2,3", 0, 1, "B001=1"},
        ParseRow{"Exponent", "R1=1e3", 3, 1, "R001=1000"},
        ParseRow{"Fraction", "R1=-1399.75", 3, 1, "R001=-1399.75"}),
    tests::rowName);

struct RejectRow : tests::NamedRow {
    std::string line;
};

class RejectedEntryTest : public testing::TestWithParam<RejectRow> {};

TEST_P(RejectedEntryTest, IsNoEntry) {
    EXPECT_FALSE(VariableEntry::parse(GetParam().line));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, RejectedEntryTest,
    testing::Values(RejectRow{"Empty", ""}, RejectRow{"UnknownKind", "X1=1"},
                    RejectRow{"LeadingBlank", " B1=1"}, RejectRow{"NoEquals", "B001"},
                    RejectRow{"LetterOnly", "B"}, RejectRow{"TwoLettersOnly", "BP"},
                    RejectRow{"EqualsBeforeTheNumber", "E=5"}, RejectRow{"NumberIsText", "BX=1"},
                    RejectRow{"NegativeNumber", "B-1=1"}, RejectRow{"NumberTooLarge", "B32768=1"},
                    RejectRow{"NumberWithFraction", "B1.5=1"}, RejectRow{"ValueIsText", "B1=abc"},
                    RejectRow{"ValueWithRest", "B1=1x"},
                    RejectRow{"ElevenValues", "P1=1,2,3,4,5,6,7,8,9,0,1"},
                    RejectRow{"TrailingCommaAfterTen", "P1=1,2,3,4,5,6,7,8,9,10,"},
                    RejectRow{"Infinite", "R1=inf"}, RejectRow{"NotANumber", "R1=nan"},
                    RejectRow{"BeyondDouble", "R1=1e999"},
                    RejectRow{"Nul", std::string("B1=\0", 4)},
                    RejectRow{"TenMegabytes", std::string(10'000'000, 'B')}),
    tests::rowName);

TEST(VariableEntryTest, ValuesReadBackToTheSameNumber) {
    for (const double value : {0.1, 1.0 / 3, -123456.789, 1e-7, 3.0e20, 255.0}) {
        VariableEntry entry;
        entry.kind = 3;
        entry.values[0] = value;
        const auto again = VariableEntry::parse(entry.format());
        ASSERT_TRUE(again) << entry.format();
        EXPECT_EQ(again->values[0], value);
    }
}

TEST(VariableEntryTest, SlotsWithoutAValueAreZero) {
    const auto entry = VariableEntry::parse("P1=5");
    ASSERT_TRUE(entry);
    EXPECT_EQ(entry->values, (VariableValues{5}));
}

} // namespace
} // namespace vantrel
