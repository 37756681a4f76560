#include "app/robots/RobotCheck.h"
#include "support/NamedRow.h"

#include <gtest/gtest.h>

namespace vantrel {
namespace {

using tests::NamedRow;
using tests::rowName;

struct TypedRow : NamedRow {
    const char* typed;
    const char* kept;
    bool movesOn;
    bool isPart; ///< of an address
};

class AddressPartTest : public testing::TestWithParam<TypedRow> {};

TEST_P(AddressPartTest, IsKeptOrCleared) {
    EXPECT_EQ(typedAddressPart(GetParam().typed), (TypedPart{GetParam().kept, GetParam().movesOn}));
}

TEST_P(AddressPartTest, IsJudged) {
    EXPECT_EQ(isAddressPart(typedAddressPart(GetParam().typed).text), GetParam().isPart);
}

INSTANTIATE_TEST_SUITE_P(
    Typed, AddressPartTest,
    testing::Values(
        TypedRow{{"Number"}, "192", "192", false, true},
        TypedRow{{"Nothing"}, "", "", false, false},
        TypedRow{{"PointAtTheEnd"}, "192.", "192", true, true},
        TypedRow{{"PointAlone"}, ".", "", false, false},
        TypedRow{{"TwoPoints"}, "1..", "", false, false},
        TypedRow{{"Letter"}, "a", "", false, false},
        TypedRow{{"LetterBehind"}, "19a", "", false, false},
        TypedRow{{"WholeAddress"}, "10.0.0.1", "", false, false},
        TypedRow{{"Fraction"}, "1.5", "1.5", false, false},
        TypedRow{{"Minus"}, "-1", "-1", false, false}, TypedRow{{"Plus"}, "+1", "+1", false, false},
        TypedRow{{"Exponent"}, "1e2", "1e2", false, false},
        TypedRow{{"Blank"}, " 1", " 1", false, false}, TypedRow{{"Zero"}, "0", "0", false, true},
        TypedRow{{"LeadingZeros"}, "0007", "0007", false, true},
        TypedRow{{"Highest"}, "255", "255", false, true},
        TypedRow{{"TooHigh"}, "256", "256", false, false},
        TypedRow{{"MuchTooHigh"}, "100000000000000000000", "100000000000000000000", false, false},
        TypedRow{{"WideDigits"}, "１", "", false, false},
        TypedRow{{"Hexadecimal"}, "0x10", "", false, false}),
    rowName);

RobotRecord addressed(const char* one, const char* two, const char* three, const char* four) {
    RobotRecord robot;
    robot.IP1 = one;
    robot.IP2 = two;
    robot.IP3 = three;
    robot.IP4 = four;
    return robot;
}

TEST(RobotAddressRules, PartsAreJoinedWithPoints) {
    EXPECT_EQ(joinedAddress(addressed("192", "168", "0", "1")), "192.168.0.1");
    EXPECT_EQ(joinedAddress(addressed("192", "", "", "")), "192...");
    EXPECT_EQ(joinedAddress(addressed("", "", "", "")), "");
}

TEST(RobotAddressRules, TidyingTakesLeadingZerosAndMakesAnEmptyOneUnset) {
    auto robot = addressed("010", "000", "7", "255");
    tidyAddress(robot);
    EXPECT_EQ(robot.IPaddr, "10.0.7.255");
    EXPECT_EQ(robot.IP1, "10");
    RobotRecord empty;
    tidyAddress(empty);
    EXPECT_EQ(empty.IPaddr, "0.0.0.0");
    EXPECT_EQ(empty.IP4, "0");
}

} // namespace
} // namespace vantrel
