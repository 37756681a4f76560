#include "app/robots/RobotFile.h"
#include "support/FakeMessageBoxes.h"

#include <new>
#include <stdexcept>
#include <system_error>

#include <gtest/gtest.h>

namespace vantrel {
namespace {

constexpr const char* defaultFolder = "/opt/vantrel";

/// The list of a file; names and folders as "name:address:folder".
std::vector<std::string> robotsIn(std::string_view text) {
    tests::FakeMessageBoxes boxes;
    TextLines lines(text);
    RobotFileReader reader(lines, boxes, defaultFolder);
    std::vector<std::string> robots;
    for (const RobotRecord& robot : reader.readList())
        robots.push_back(robot.Name + ":" + robot.IPaddr + ":" + robot.Path);
    EXPECT_TRUE(boxes.shown.empty());
    EXPECT_FALSE(reader.endedEarly());
    EXPECT_EQ(robots.back(), "@END@::");
    robots.pop_back();
    return robots;
}

struct Case {
    const char* name;
    std::string text;
    std::vector<std::string> robots;
};

class RobotListReadTest : public testing::TestWithParam<Case> {};

TEST_P(RobotListReadTest, HoldsTheRobotsOfTheFile) {
    EXPECT_EQ(robotsIn(GetParam().text), GetParam().robots);
}

INSTANTIATE_TEST_SUITE_P(
    , RobotListReadTest,
    testing::Values(
        Case{"Empty", "", {}}, Case{"BootOnly", "[Boot]\r\nName=R1\r\n", {}},
        Case{"NameOnly", "[Robot]\r\nName=R1\r\n", {"R1::/opt/vantrel"}},
        Case{"NoKeys", "[Robot]\r\n", {"DEFAULT::/opt/vantrel"}},
        Case{"AllKeys",
             "[Robot]\r\nName=R1\r\nIPaddr=10.0.0.5\r\nPath=C:\\jobs\r\n",
             {"R1:10.0.0.5:C:\\jobs"}},
        Case{"TwoRobots",
             "[Robot]\r\nName=A\r\n\r\n[Robot]\r\nName=B\r\n",
             {"A::/opt/vantrel", "B::/opt/vantrel"}},
        Case{"LineFeedOnly",
             "[Robot]\nName=A\n[Robot]\nName=B",
             {"A::/opt/vantrel", "B::/opt/vantrel"}},
        Case{"CarriageReturnOnly", "[Robot]\rName=A\r", {"A::/opt/vantrel"}},
        Case{"ValueIsCutAtAComma", "[Robot]\r\nPath=C:\\a,b\r\n", {"DEFAULT::C:\\a"}},
        Case{"ValueIsCutAtAnEqualsSign", "[Robot]\r\nName=a=b\r\n", {"a::/opt/vantrel"}},
        Case{"BlanksStayInAValue", "[Robot]\r\nName= my robot \r\n", {" my robot ::/opt/vantrel"}},
        Case{"RunsOfDelimitersCollapse", "[Robot]\r\n\t\tName=,=\tR1\tx\r\n", {"R1::/opt/vantrel"}},
        Case{"CommaInPlaceOfTheEqualsSign", "[Robot]\r\nName,R1\r\n", {"R1::/opt/vantrel"}},
        Case{"KeyWithoutValueKeepsTheDefault",
             "[Robot]\r\nName=\r\nPath=\r\n",
             {"DEFAULT::/opt/vantrel"}},
        Case{"KeysMatchExactly", "[Robot]\r\nname=R1\r\n Name=R2\r\n", {"DEFAULT::/opt/vantrel"}},
        Case{"BlockNamesMatchExactly", "[robot]\r\nName=R1\r\n[ Robot]\r\nName=R2\r\n", {}},
        Case{"TabsBeforeAHeader", "\t[Robot]\r\nName=R1\r\n", {"R1::/opt/vantrel"}},
        Case{"BlankBeforeAHeaderMakesItNone", " [Robot]\r\nName=R1\r\n", {}},
        Case{"TextBehindAHeader", "[Robot],x\r\nName=R1\r\n", {"R1::/opt/vantrel"}},
        Case{"OtherBlocksAreSkipped",
             "[Other]\r\nName=X\r\n[Robot]\r\nName=R1\r\n[Z]\r\nName=Y",
             {"R1::/opt/vantrel"}},
        Case{"EmptyBlockNameIsAnotherBlock",
             "[]\r\nName=X\r\n[Robot]\r\nName=R1\r\n[]\r\nName=Y\r\n"
             "[Robot]\r\nName=R2\r\n",
             {"R1::/opt/vantrel", "R2::/opt/vantrel"}},
        Case{"ALoneBracketIsNoHeader",
             "[\r\n]\r\n[Robot]\r\n[\r\nName=R1\r\n",
             {"R1::/opt/vantrel"}},
        Case{"TheLastOfEqualKeysCounts", "[Robot]\r\nName=A\r\nName=B\r\n", {"B::/opt/vantrel"}},
        Case{"TheSentinelsNameHidesNobody",
             "[Robot]\r\nName=@END@\r\n[Robot]\r\nName=R1\r\n",
             {"R1::/opt/vantrel"}},
        Case{"LinesBeforeTheFirstBlock",
             "Name=X\r\n\r\n[Robot]\r\nName=R1\r\n",
             {"R1::/opt/vantrel"}}),
    [](const auto& test) { return test.param.name; });

struct AddressCase {
    const char* name;
    const char* address;
    std::vector<std::string> parts;
};

class RobotAddressTest : public testing::TestWithParam<AddressCase> {};

TEST_P(RobotAddressTest, FillsItsPartsFromTheLeft) {
    RobotRecord record;
    setAddress(record, GetParam().address);
    EXPECT_EQ(record.IPaddr, GetParam().address);
    EXPECT_EQ((std::vector<std::string>{record.IP1, record.IP2, record.IP3, record.IP4}),
              GetParam().parts);
}

INSTANTIATE_TEST_SUITE_P(
    , RobotAddressTest,
    testing::Values(AddressCase{"Whole", "10.0.0.5", {"10", "0", "0", "5"}},
                    AddressCase{"OnePart", "10", {"10", "", "", ""}},
                    AddressCase{"TwoParts", "10.5", {"10", "5", "", ""}},
                    AddressCase{"PointAtTheEnd", "10.5.", {"10", "5", "", ""}},
                    AddressCase{"FivePartsStayInTheFourth", "1.2.3.4.5", {"1", "2", "3", "4.5"}},
                    AddressCase{"PointsOnly", "...", {"", "", "", ""}},
                    AddressCase{"Empty", "", {"", "", "", ""}}),
    [](const auto& test) { return test.param.name; });

TEST(RobotFileReaderTest, BlocksAreReadOneByOne) {
    tests::FakeMessageBoxes boxes;
    TextLines lines("x\r\n[Boot]\r\nName=A\r\n[Robot]\r\nName=B\r\n[]\r\n");
    RobotFileReader reader(lines, boxes, defaultFolder);
    EXPECT_EQ(reader.FindFirstBlock(), "Boot");
    EXPECT_EQ(reader.FindFirstBlock(), "Robot");
    RobotRecord record;
    EXPECT_EQ(reader.ReadBlock_Robot(record), "");
    EXPECT_EQ(record.Name, "B");
    EXPECT_EQ(reader.FindFirstBlock(), std::nullopt);
}

/// A file whose reading breaks down after some lines.
class BrokenLines final : public LineSource {
  public:
    explicit BrokenLines(std::vector<std::string> lines) : lines_(std::move(lines)) {}
    std::optional<std::string_view> next() override {
        if (position_ == lines_.size())
            throw std::system_error(std::make_error_code(std::errc::io_error));
        return lines_[position_++];
    }

  private:
    std::vector<std::string> lines_;
    std::size_t position_ = 0;
};

using Box = tests::FakeMessageBoxes::Box;

TEST(RobotFileReaderTest, AnErrorBeforeABlockIsToldAndEndsTheList) {
    tests::FakeMessageBoxes boxes;
    BrokenLines lines({"[Boot]"});
    RobotFileReader reader(lines, boxes, defaultFolder);
    EXPECT_EQ(reader.readList().size(), 1U);
    EXPECT_TRUE(reader.endedEarly());
    EXPECT_EQ(boxes.shown, (std::vector<Box>{{tests::FakeMessageBoxes::Kind::Tell,
                                              "Error(5) & at FindFirstBlock", BoxIcon::None}}));
}

TEST(RobotFileReaderTest, AnErrorInABlockIsToldAndKeepsTheRobotsSoFar) {
    tests::FakeMessageBoxes boxes;
    BrokenLines lines({"[Robot]", "Name=R1"});
    RobotFileReader reader(lines, boxes, defaultFolder);
    const std::vector<RobotRecord> robots = reader.readList();
    ASSERT_EQ(robots.size(), 2U);
    EXPECT_EQ(robots[0].Name, "R1");
    EXPECT_TRUE(reader.endedEarly());
    EXPECT_EQ(boxes.shown, (std::vector<Box>{{tests::FakeMessageBoxes::Kind::Tell,
                                              "Error(5) at ReadBlock_Robot", BoxIcon::None}}));
}

TEST(RobotFileReaderTest, GarbageGivesNoRobots) {
    for (const std::string& garbage :
         {std::string(10'000'000, 'x'), std::string(10'000'000, '\n'), std::string(10'000'000, '='),
          std::string(10'000'000, '['), std::string(1000, '\0')})
        EXPECT_TRUE(robotsIn(garbage).empty());
}

TEST(RobotFileReaderTest, ALongLineBetweenRobotsIsPassedOver) {
    EXPECT_EQ(robotsIn("[Robot]\r\nName=A\r\n" + std::string(10'000'000, 'x') + "\r\nPath=/p\r\n"),
              (std::vector<std::string>{"A::/p"}));
}

} // namespace
} // namespace vantrel
