#include "app/robots/RobotFile.h"
#include "app/robots/RobotPaths.h"
#include "support/FakeMessageBoxes.h"

#include <gtest/gtest.h>

namespace vantrel {
namespace {

struct NameCase {
    const char* name;
    std::string given;
    const char* written;
};

class CleanNameTest : public testing::TestWithParam<NameCase> {};

TEST_P(CleanNameTest, HasNothingThatAReaderStrips) {
    EXPECT_EQ(cleanName(GetParam().given), GetParam().written);
}

INSTANTIATE_TEST_SUITE_P(
    , CleanNameTest,
    testing::Values(NameCase{"Plain", "R1", "R1"}, NameCase{"InnerBlank", "my robot", "my robot"},
                    NameCase{"OuterBlanks", "  R1 ", "R1"},
                    NameCase{"DoubleQuotes", "\"R1\"", "R1"},
                    NameCase{"SingleQuotes", "'R1'", "R1"},
                    NameCase{"QuotesInQuotes", "\" 'R1' \"", "R1"},
                    NameCase{"OneSidedQuoteStays", "\"R1", "\"R1"},
                    NameCase{"UnequalQuotesStay", "\"R1'", "\"R1'"}, NameCase{"Comma", "a,b", "a"},
                    NameCase{"EqualsSign", "a=b", "a"}, NameCase{"LineEnd", "a\r\n[Robot]", "a"},
                    NameCase{"Tab", "\ta\tb", "a"}, NameCase{"Nul", std::string("a\0b", 3), "a"},
                    NameCase{"Sentinel", "@END@", ""}, NameCase{"QuotedSentinel", " '@END@'", ""},
                    NameCase{"DelimitersOnly", ",=\t", ""}, NameCase{"LoneQuote", "\"", "\""}),
    [](const auto& test) { return test.param.name; });

struct FolderCase {
    const char* name;
    const char* given;
    const char* written;
};

class WritableFolderTest : public testing::TestWithParam<FolderCase> {};

TEST_P(WritableFolderTest, ReadsBackAsTheSameFolderOrNone) {
    const RobotPaths paths("/opt/van,trel", PathStyle::Posix);
    EXPECT_EQ(writableFolder(GetParam().given, paths), GetParam().written);
}

INSTANTIATE_TEST_SUITE_P(
    , WritableFolderTest,
    testing::Values(FolderCase{"Plain", "/srv/jobs", "/srv/jobs"},
                    FolderCase{"Blanks", "/srv/my jobs ", "/srv/my jobs "},
                    FolderCase{"Delimiter", "/srv/a=b", ""},
                    FolderCase{"ProgramFolder", "/opt/van,trel", ""},
                    FolderCase{"BelowTheProgramFolder", "/opt/van,trel/jobs/r1", "jobs/r1"},
                    FolderCase{"BelowItWithADelimiter", "/opt/van,trel/a,b", ""},
                    FolderCase{"BelowItLikeADrive", "/opt/van,trel/c:", ""},
                    FolderCase{"LineEnd", "/srv/a\nb", ""},
                    FolderCase{"BytesThatAreNoText", "/srv/a\xFF", ""}),
    [](const auto& test) { return test.param.name; });

RobotRecord robot(std::string name, std::string address, std::string folder) {
    RobotRecord record;
    record.Name = std::move(name);
    record.IPaddr = std::move(address);
    record.Path = std::move(folder);
    return record;
}

TEST(RobotFileWriterTest, WritesOneBlockPerRobotUpToTheSentinel) {
    std::vector<RobotRecord> robots = emptyRobotList();
    robots.insert(robots.begin(), {robot("R1", "10.0.0.5", "/a"), robot("R2", "", "/b")});
    robots.push_back(robot("behind", "", ""));
    EXPECT_EQ(registryText("R2", robots, RobotPaths("/opt", PathStyle::Posix)),
              "[Boot]\r\nName=R2\r\n\r\n"
              "[Robot]\r\nName=R1\r\nIPaddr=10.0.0.5\r\nPath=/a\r\n\r\n"
              "[Robot]\r\nName=R2\r\nIPaddr=\r\nPath=/b\r\n\r\n");
}

TEST(RobotFileWriterTest, WhatIsWrittenReadsBack) {
    std::vector<RobotRecord> robots = emptyRobotList();
    robots.insert(robots.begin(), {robot("ﾛﾎﾞｯﾄ 1", "", "/作業"), robot("[x]", "", "/b;c")});
    setAddress(robots[0], "10.0.0.5");
    setAddress(robots[1], "1.2.3.4");
    const std::string text = registryText("[x]", robots, RobotPaths("/opt", PathStyle::Posix));
    tests::FakeMessageBoxes boxes;
    TextLines lines(text);
    EXPECT_EQ(RobotFileReader(lines, boxes, "/opt").readList(), robots);
}

TEST(RobotFileWriterTest, AMarkIsWrittenWhereThereIsOne) {
    std::vector<RobotRecord> robots = emptyRobotList();
    robots.insert(robots.begin(), {robot("R1", "", "/a"), robot("R2", "", "/b")});
    robots[0].Colour = "Red";
    robots[1].Label = "LIVE, LINE=2";
    EXPECT_EQ(registryText("R1", robots, RobotPaths("/opt", PathStyle::Posix)),
              "[Boot]\r\nName=R1\r\n\r\n"
              "[Robot]\r\nName=R1\r\nIPaddr=\r\nPath=/a\r\nColour=Red\r\n\r\n"
              "[Robot]\r\nName=R2\r\nIPaddr=\r\nPath=/b\r\nLabel=LIVE, LINE=2\r\n\r\n");
}

TEST(RobotFileWriterTest, AMarkThatCannotBeShownReadsBackAsItWas) {
    std::vector<RobotRecord> robots = emptyRobotList();
    robots.insert(robots.begin(), {robot("R1", "", "/a"), robot("R2", "", "/b")});
    robots[1].Colour = ",";
    robots[1].Label = "==";
    robots[0].Colour = " Pink, dark = 7";
    robots[0].Label = std::string(500, 'x') + "\x01\t=,[Robot] ";
    const std::string text = registryText("R1", robots, RobotPaths("/opt", PathStyle::Posix));
    tests::FakeMessageBoxes boxes;
    TextLines lines(text);
    EXPECT_EQ(RobotFileReader(lines, boxes, "/opt").readList(), robots);
}

TEST(RobotFileWriterTest, NoLineIsAddedByAMark) {
    std::vector<RobotRecord> robots = emptyRobotList();
    robots.insert(robots.begin(), robot("R1", "", "/a"));
    robots[0].Label = "A\r\n[Robot]";
    const std::string text = registryText("R1", robots, RobotPaths("/opt", PathStyle::Posix));
    EXPECT_TRUE(text.ends_with("Label=A\r\n\r\n")) << text;
}

} // namespace
} // namespace vantrel
