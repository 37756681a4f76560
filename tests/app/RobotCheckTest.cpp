#include "app/robots/RobotCheck.h"

#include "AppFakes.h"
#include "app/robots/RobotListDraft.h"
#include "support/NamedRow.h"

#include <gtest/gtest.h>

namespace vantrel {
namespace {

using tests::NamedRow;
using tests::rowName;
using Kind = RobotFault::Kind;

const RobotRecord good{"B", "10", "0", "0", "2", "10.0.0.2", "/robots/b"};

RobotEntry edited(RobotRecord robot) {
    return {2, std::move(robot), good, false};
}

RobotEntry untouched(const RobotRecord& robot) {
    return {1, robot, robot, false};
}

/// The fault of an edited robot that stands behind an untouched one named "Taken".
std::optional<RobotFault> faultOf(const RobotRecord& robot) {
    RobotRecord other = good;
    other.Name = "Taken Ω";
    const std::vector<RobotEntry> robots{untouched(other), edited(robot)};
    return findRobotFault(robots);
}

struct NameRow : NamedRow {
    std::string typed;
    std::optional<Kind> fault;
};

class RobotNameTest : public testing::TestWithParam<NameRow> {};

TEST_P(RobotNameTest, IsJudged) {
    RobotRecord robot = good;
    robot.Name = GetParam().typed;
    const auto fault = faultOf(robot);
    ASSERT_EQ(fault.has_value(), GetParam().fault.has_value());
    if (fault) {
        EXPECT_EQ(fault->kind, *GetParam().fault);
        EXPECT_EQ(fault->robot, 1U);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Names, RobotNameTest,
    testing::Values(NameRow{{"Plain"}, "LINE1 WELD", {}}, NameRow{{"Japanese"}, "溶接１号", {}},
                    NameRow{{"HalfWidth"}, "ﾛﾎﾞｯﾄ", {}}, NameRow{{"InnerApostrophe"}, "Bob's", {}},
                    NameRow{{"Brackets"}, "[Robot]", {}}, NameRow{{"Semicolon"}, ";R", {}},
                    NameRow{{"Empty"}, "", Kind::NoName},
                    NameRow{{"BlanksOnly"}, "  ", Kind::NoName},
                    NameRow{{"Comma"}, "a,b", Kind::NameRefused},
                    NameRow{{"EqualsSign"}, "a=b", Kind::NameRefused},
                    NameRow{{"Tab"}, "a\tb", Kind::NameRefused},
                    NameRow{{"LineEnd"}, "a\nb", Kind::NameRefused},
                    NameRow{{"CarriageReturn"}, "a\rb", Kind::NameRefused},
                    NameRow{{"Nul"}, std::string("a\0b", 3), Kind::NameRefused},
                    NameRow{{"BlankBefore"}, " a", Kind::NameRefused},
                    NameRow{{"BlankBehind"}, "a ", Kind::NameRefused},
                    NameRow{{"Quoted"}, "\"a\"", Kind::NameRefused},
                    NameRow{{"QuoteInside"}, "a\"b", Kind::NameRefused},
                    NameRow{{"SingleQuoted"}, "'a'", Kind::NameRefused},
                    NameRow{{"SingleQuoteBefore"}, "'a", Kind::NameRefused},
                    NameRow{{"SingleQuoteBehind"}, "a'", Kind::NameRefused},
                    NameRow{{"Sentinel"}, "@END@", Kind::NameRefused},
                    NameRow{{"BytesThatAreNoText"}, "a\xFF", Kind::NameRefused},
                    NameRow{{"Taken"}, "Taken Ω", Kind::NameTaken},
                    NameRow{{"TakenInOtherCase"}, "TAKEN ω", Kind::NameTaken}),
    rowName);

struct AddressRow : NamedRow {
    std::array<const char*, 4> parts;
    int refusedPart; ///< -1 for none
};

class RobotAddressCheckTest : public testing::TestWithParam<AddressRow> {};

TEST_P(RobotAddressCheckTest, IsJudged) {
    RobotRecord robot = good;
    for (std::size_t part = 0; part < addressParts.size(); ++part)
        robot.*addressParts[part] = GetParam().parts[part];
    robot.IPaddr = joinedAddress(robot);
    std::optional<RobotFault> expected;
    if (GetParam().refusedPart >= 0)
        expected = RobotFault{Kind::AddressRefused, 1, std::size_t(GetParam().refusedPart)};
    EXPECT_EQ(faultOf(robot), expected);
}

INSTANTIATE_TEST_SUITE_P(Addresses, RobotAddressCheckTest,
                         testing::Values(AddressRow{{"Lowest"}, {"0", "0", "0", "0"}, -1},
                                         AddressRow{{"Highest"}, {"255", "255", "255", "255"}, -1},
                                         AddressRow{{"LeadingZeros"}, {"010", "000", "1", "1"}, -1},
                                         AddressRow{{"AllEmpty"}, {"", "", "", ""}, -1},
                                         AddressRow{{"FirstEmpty"}, {"", "0", "0", "1"}, 0},
                                         AddressRow{{"LastEmpty"}, {"10", "0", "0", ""}, 3},
                                         AddressRow{{"TooHigh"}, {"10", "256", "0", "1"}, 1},
                                         AddressRow{{"Fraction"}, {"10", "0", "1.5", "1"}, 2},
                                         AddressRow{{"Minus"}, {"-1", "0", "0", "1"}, 0},
                                         AddressRow{{"Blank"}, {"10", "0", "0", " 1"}, 3}),
                         rowName);

TEST(RobotCheckTest, AChosenFolderHoldsNoCommaAndNoEqualsSign) {
    for (const char* const folder : {"/a,b", "/a=b", "/a\tb", "/a\nb"}) {
        RobotRecord robot = good;
        robot.Path = folder;
        EXPECT_EQ(faultOf(robot), (RobotFault{Kind::FolderRefused, 1})) << folder;
    }
    RobotRecord robot = good;
    robot.Path = "/jobs/溶接 [1]";
    EXPECT_EQ(faultOf(robot), std::nullopt);
}

TEST(RobotCheckTest, AChosenFolderCanBeWrittenAsText) {
    RobotRecord robot = good;
    robot.Path = "/jobs/\xFF";
    EXPECT_EQ(faultOf(robot), (RobotFault{Kind::FolderRefused, 1}));
}

// They look the same in every list.
TEST(RobotCheckTest, ANameThatAnOldRobotHasWithBlanksAroundItIsTaken) {
    RobotRecord old = good, typed = good;
    old.Name = " R1 ";
    typed.Name = "r1";
    const std::vector<RobotEntry> robots{untouched(old), edited(typed)};
    EXPECT_EQ(findRobotFault(robots), (RobotFault{Kind::NameTaken, 1}));
}

TEST(RobotCheckTest, ANameThatNobodyChangedLetsTheAddressBeMended) {
    RobotRecord first = good, stored = good;
    first.Name = "R1";
    stored.Name = " R1";
    RobotRecord mended = stored;
    mended.IP4 = "77";
    mended.IPaddr = joinedAddress(mended);
    const std::vector<RobotEntry> robots{untouched(first), {2, mended, stored, false}};
    EXPECT_EQ(findRobotFault(robots), std::nullopt);
}

TEST(RobotCheckTest, AFolderThatNobodyChoseIsNotJudged) {
    RobotRecord stored = good;
    stored.Path = "/installed, there";
    RobotRecord renamed = stored;
    renamed.Name = "X";
    const std::vector<RobotEntry> robots{{1, renamed, stored, false}, {2, stored, stored, true}};
    EXPECT_EQ(findRobotFault(robots), std::nullopt);
}

TEST(RobotCheckTest, AnOldOddRegistryIsNotJudged) {
    RobotRecord odd{"", "x", "", "", "", "x", "/a,b"};
    RobotRecord twice = good;
    const std::vector<RobotEntry> robots{untouched(odd), untouched(twice), untouched(twice)};
    EXPECT_EQ(findRobotFault(robots), std::nullopt);
}

TEST(RobotCheckTest, ANewRobotIsJudged) {
    RobotRecord robot = good;
    robot.Name.clear();
    const std::vector<RobotEntry> robots{{1, robot, robot, true}};
    EXPECT_EQ(findRobotFault(robots), (RobotFault{Kind::NoName, 0}));
}

TEST(RobotCheckTest, TheFirstFaultOfTheListIsFound) {
    RobotRecord nameless = good, far = good;
    nameless.Name.clear();
    far.IP4 = "300";
    const std::vector<RobotEntry> robots{edited(far), edited(nameless)};
    EXPECT_EQ(findRobotFault(robots), (RobotFault{Kind::AddressRefused, 0, 3}));
}

TEST(RobotCheckTest, TheMessageNamesTheRobotAndWhatIsWrong) {
    const auto messages = tests::numberedMessages();
    const std::vector<RobotEntry> robots{untouched(good)};
    EXPECT_EQ(faultText({Kind::NoName, 0}, robots, messages), "m330");
    EXPECT_EQ(faultText({Kind::NameTaken, 0}, robots, messages), "[B]m331");
    EXPECT_EQ(faultText({Kind::NameRefused, 0}, robots, messages), "[B]m332");
    EXPECT_EQ(faultText({Kind::AddressRefused, 0, 2}, robots, messages), "[B]m333");
    EXPECT_EQ(faultText({Kind::FolderRefused, 0}, robots, messages), "[B]m334");
}

TEST(RobotCheckTest, AVeryLongNameIsNamedShortened) {
    RobotRecord robot = good;
    robot.Name = std::string(100'000, 'N');
    const std::vector<RobotEntry> robots{untouched(robot)};
    EXPECT_LT(faultText({Kind::NameTaken, 0}, robots, tests::numberedMessages()).size(), 250U);
}

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
