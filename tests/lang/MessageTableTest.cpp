#include "lang/MessageTable.h"

#include <limits>

#include <gtest/gtest.h>

namespace vantrel {
namespace {

MessageTable tableOf(std::vector<MessageEntry> entries) {
    MessageTable table;
    table.replace(std::move(entries));
    return table;
}

TEST(MessageTable, ShowsTheSecondTextUnlessAskedForTheFirst) {
    const auto table = tableOf({{12, "a", "b"}});
    EXPECT_EQ(table.getMessage(12), "b");
    EXPECT_EQ(table.getMessage(12, 2), "b");
    EXPECT_EQ(table.getMessage(12, 1), "a");
}

TEST(MessageTable, GivesNothingForAnotherKind) {
    const auto table = tableOf({{12, "a", "b"}});
    EXPECT_EQ(table.getMessage(12, 0), "");
    EXPECT_EQ(table.getMessage(12, 3), "");
    EXPECT_EQ(table.getMessage(12, -1), "");
}

TEST(MessageTable, GivesNothingForAMissingNumber) {
    EXPECT_EQ(MessageTable().getMessage(12), "");
    EXPECT_EQ(tableOf({{12, "a", "b"}}).getMessage(13), "");
    EXPECT_EQ(tableOf({{12, "a", "b"}}).getMessage(12 + 65536), "");
}

TEST(MessageTable, FirstOfEqualNumbersWins) {
    const auto table = tableOf({{12, "a", "b"}, {7, "c", "d"}, {12, "e", "f"}});
    EXPECT_EQ(table.getMessage(12), "b");
    EXPECT_EQ(table.getMessage(12, 1), "a");
    EXPECT_EQ(table.getMessage(7), "d");
}

TEST(MessageTable, ReplacingForgetsTheOldTexts) {
    auto table = tableOf({{12, "a", "b"}});
    table.replace({{13, "c", "d"}});
    EXPECT_EQ(table.getMessage(12), "");
    EXPECT_EQ(table.getMessage(13), "d");
}

struct Insertion {
    const char* name;
    const char* text;
    const char* argument;
    const char* expected;
};

class MessageInsertion : public testing::TestWithParam<Insertion> {};

TEST_P(MessageInsertion, ReplacesTheFirstPercentSign) {
    const auto& [name, text, argument, expected] = GetParam();
    EXPECT_EQ(tableOf({{3, "", text}}).getMessageWithInsertion(3, argument), expected);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, MessageInsertion,
    testing::Values(Insertion{"InTheMiddle", "file [%] missing", "x.lng", "file [x.lng] missing"},
                    Insertion{"AtTheStart", "% left", "3", "3 left"},
                    Insertion{"AtTheEnd", "left: %", "3", "left: 3"},
                    Insertion{"Alone", "%", "3", "3"},
                    Insertion{"OnlyTheFirst", "% of %", "3", "3 of %"},
                    Insertion{"ArgumentWithPercent", "a % b %", "100%", "a 100% b %"},
                    Insertion{"NoPlaceholder", "nothing here", "3", "nothing here"},
                    Insertion{"EmptyArgument", "[%]", "", "[]"},
                    Insertion{"EmptyText", "", "3", ""}),
    [](const auto& row) { return row.param.name; });

TEST(MessageTable, ASecondInsertionGoesToTheSecondPercentSign) {
    const auto table = tableOf({{3, "", "[%] from %?"}, {4, "", "[%] only"}});
    EXPECT_EQ(table.getMessageWithInsertion(3, "A", "R"), "[A] from R?");
    EXPECT_EQ(table.getMessageWithInsertion(3, "100%", "50%"), "[100%] from 50%?");
    EXPECT_EQ(table.getMessageWithInsertion(4, "A", "R"), "[A] only");
}

TEST(MessageTable, InsertionIntoAMissingMessageGivesNothing) {
    EXPECT_EQ(MessageTable().getMessageWithInsertion(3, "x"), "");
}

TEST(MessageTable, ResourceMessagesAreNumberedFrom500) {
    const auto table = tableOf({{502, "", "exists"}, {499, "", "minus one"}});
    EXPECT_EQ(table.resourceMessage(2), "exists");
    EXPECT_EQ(table.resourceMessage(-1), "minus one");
    EXPECT_EQ(table.resourceMessage(502), "");
}

TEST(MessageTable, ResourceMessagesTakeAnyNumber) {
    using Limits = std::numeric_limits<std::int32_t>;
    EXPECT_EQ(tableOf({{499, "", "x"}}).resourceMessage(Limits::max()), "");
    EXPECT_EQ(tableOf({{499, "", "x"}}).resourceMessage(Limits::min()), "");
}

struct Code {
    const char* name;
    std::int32_t code;
    const char* controllerText;
    const char* anyText;
};

class ErrorTexts : public testing::TestWithParam<Code> {};

TEST_P(ErrorTexts, DependOnTheRangeOfTheCode) {
    const auto table = tableOf({{1000, "", "first"},
                                {5200, "", "last"},
                                {999, "", "below"},
                                {5201, "", "above"},
                                {503, "", "cancelled"},
                                {490, "", "library"},
                                {1620, "", "not of 1120"},
                                {5600, "", "ours"}});
    EXPECT_EQ(table.controllerErrorText(GetParam().code), GetParam().controllerText);
    EXPECT_EQ(table.errorText(GetParam().code), GetParam().anyText);
}

INSTANTIATE_TEST_SUITE_P(
    Codes, ErrorTexts,
    testing::Values(Code{"FirstControllerCode", 1000, "first", "first"},
                    Code{"LastControllerCode", 5200, "last", "last"},
                    Code{"BelowTheRange", 999, "", "999"}, Code{"AboveTheRange", 5201, "", "5201"},
                    Code{"AboveTheRangeWithResource", 5100, "", "5100"},
                    Code{"Cancelled", 3, "", "cancelled"},
                    Code{"LibraryUnusable", -10, "", "library"},
                    Code{"UnknownController", 1120, "", "1120"}, Code{"UnknownOther", 77, "", "77"},
                    Code{"UnknownNegative", -77, "", "-77"},
                    Code{"Largest", std::numeric_limits<std::int32_t>::max(), "", "2147483647"},
                    Code{"Smallest", std::numeric_limits<std::int32_t>::min(), "", "-2147483648"}),
    [](const auto& row) { return row.param.name; });

} // namespace
} // namespace vantrel
