#include "app/robots/RobotRegistry.h"

#include "RobotRegistryFixture.h"
#include "app/robots/RobotFile.h"
#include "app/robots/RobotPaths.h"
#include "base/PathRules.h"
#include "base/TextCase.h"
#include "platform/TextEncoding.h"
#include "support/NamedRow.h"

#include <cstddef>
#include <filesystem>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace vantrel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using tests::RobotRegistryTest;

TEST_F(RobotRegistryTest, AMissingFileIsCreated) {
    registry_.read(box_);
    EXPECT_EQ(file(), boot("DEFAULT") + blockOf("DEFAULT", "0.0.0.0", folder_.path()));
    EXPECT_EQ(box_.names, (std::vector<std::string>{"DEFAULT"}));
    EXPECT_EQ(box_.selected, 0);
    EXPECT_EQ(state_.BootName, "DEFAULT");
    EXPECT_EQ(state_.CurrentRobot.Path, folder_.path());
    EXPECT_EQ(state_.CurrentRobot.IP4, "0");
    EXPECT_TRUE(boxes_.shown.empty());
}

TEST_F(RobotRegistryTest, WhereNothingCanBeWrittenTheDefaultListIsUsed) {
    const std::string gone = folder_.path("gone");
    RobotRegistry registry(state_, messages_, boxes_, gone);
    registry.read(box_);
    EXPECT_EQ(box_.names, (std::vector<std::string>{"DEFAULT"}));
    EXPECT_EQ(state_.CurrentRobot.Path, gone);
    EXPECT_TRUE(boxes_.shown.empty());
    EXPECT_FALSE(registry.write());
}

TEST_F(RobotRegistryTest, ARobotWithANameOnlyHasTheProgramFolder) {
    read("[Robot]\r\nName=R1\r\n");
    EXPECT_EQ(state_.CurrentRobot.Name, "R1");
    EXPECT_EQ(state_.CurrentRobot.IPaddr, "");
    EXPECT_EQ(state_.CurrentRobot.Path, folder_.path());
}

TEST_F(RobotRegistryTest, RelativeFoldersStartFromTheBaseFolder) {
    read("[Robot]\r\nName=A\r\nPath=data\\r1\r\n[Robot]\r\nName=B\r\nPath=jobs\r\n");
    const std::string base = lowerCase(folder_.path());
    EXPECT_EQ(state_.BaseDir, base);
    EXPECT_EQ(state_.RobotList[0].Path, PathRules().join(PathRules().join(base, "data"), "r1"));
    EXPECT_EQ(state_.RobotList[1].Path, PathRules().join(base, "jobs"));
}

TEST_F(RobotRegistryTest, TheBaseFolderIsInLowerCaseWhereThatFolderExists) {
    folder_.makeFolder("Mixed");
    const std::string lower = lowerCase(folder_.makeFolder("mixed"));
    EXPECT_EQ(robotBaseFolder(folder_.path("Mixed")), lower);
}

TEST_F(RobotRegistryTest, TheBaseFolderKeepsItsSpellingWhereTheLowerCaseOneDoesNotExist) {
    const std::string mixed = folder_.makeFolder("Mixed");
    // A system to which letter case does not matter has the folder in lower case as well.
    const std::string lower = lowerCase(mixed);
    EXPECT_EQ(robotBaseFolder(mixed), isFolder(lower) ? lower : mixed);
}

TEST_F(RobotRegistryTest, ReadingTakesTheCurrentFolderInLowerCaseForTheBaseFolder) {
    const std::string lower = lowerCase(folder_.makeFolder("mixed"));
    const tests::InFolder inMixed(folder_.makeFolder("Mixed"));
    read("[Robot]\r\nName=A\r\nPath=jobs\r\n");
    EXPECT_EQ(state_.BaseDir, lower);
    EXPECT_EQ(state_.RobotList[0].Path, PathRules().join(lower, "jobs"));
}

TEST_F(RobotRegistryTest, ReadingLeavesTheCurrentFolder) {
    folder_.makeFolder("jobs");
    read("[Robot]\r\nName=A\r\nPath=jobs\r\n");
    EXPECT_EQ(currentFolder(), folder_.path());
}

TEST_F(RobotRegistryTest, TheBootRobotIsSelected) {
    read("[Boot]\r\nName=B\r\n[Robot]\r\nName=A\r\n[Robot]\r\nName=B\r\nIPaddr=10.0.0.5\r\n");
    EXPECT_EQ(state_.BootName, "B");
    EXPECT_EQ(state_.CurrentRobotIndex, 1);
    EXPECT_EQ(state_.StartRobotIndex, 1);
    EXPECT_EQ(state_.CurrentRobot.Name, "B");
    EXPECT_EQ(state_.CurrentRobot.IPaddr, "10.0.0.5");
    EXPECT_EQ(box_.names, (std::vector<std::string>{"A", "B"}));
    EXPECT_EQ(box_.selected, 1);
}

TEST_F(RobotRegistryTest, TheLastOfEqualNamesIsSelected) {
    read("[Boot]\r\nName=B\r\n[Robot]\r\nName=B\r\n[Robot]\r\nName=B\r\n[Robot]\r\nName=C\r\n");
    EXPECT_EQ(state_.CurrentRobotIndex, 1);
}

TEST_F(RobotRegistryTest, ThatSeveralRobotsHaveTheBootNameIsTold) {
    read(boot("B") + blockOf("B", "10.0.0.1", "/a") + blockOf("B", "10.0.0.2", "/b") +
         blockOf("C", "10.0.0.3", "/c"));
    ASSERT_THAT(boxes_.texts(), ElementsAre("m380[B] 10.0.0.2"));
    EXPECT_EQ(boxes_.shown[0].icon, BoxIcon::Exclamation);
    EXPECT_EQ(box_.selected, 1) << "the box is filled all the same";
}

TEST_F(RobotRegistryTest, EqualNamesThatAreNotTheBootNameAreNotTold) {
    read(boot("C") + blockOf("B", "10.0.0.1", "/a") + blockOf("B", "10.0.0.2", "/b") +
         blockOf("C", "10.0.0.3", "/c"));
    EXPECT_THAT(boxes_.texts(), IsEmpty());
    EXPECT_EQ(state_.CurrentRobot.IPaddr, "10.0.0.3");
}

struct BytesRow : tests::NamedRow {
    std::string content;
    int selected;
    bool isTold;
};

/// Robots whose names are one text once they are decoded, each at an address of its own.
class BootBytesTest : public RobotRegistryTest, public testing::WithParamInterface<BytesRow> {};

TEST_P(BootBytesTest, DecideWhichRobotIsChosen) {
    read(GetParam().content);
    ASSERT_EQ(robotCount(state_.RobotList), 3U);
    EXPECT_EQ(state_.RobotList[0].Name, state_.RobotList[1].Name);
    EXPECT_EQ(state_.CurrentRobotIndex, GetParam().selected);
    EXPECT_EQ(state_.CurrentRobot, state_.RobotList[static_cast<std::size_t>(GetParam().selected)]);
    EXPECT_EQ(boxes_.shown.size(), GetParam().isTold ? 1U : 0U);
}

std::string robots(const std::string& start, const std::string& first, const std::string& second,
                   const std::string& third) {
    return "[Boot]\r\nName=" + start + "\r\n[Robot]\r\nName=" + first + "\r\nIPaddr=1.1.1.1\r\n" +
           "[Robot]\r\nName=" + second + "\r\nIPaddr=2.2.2.2\r\n[Robot]\r\nName=" + third +
           "\r\nIPaddr=3.3.3.3\r\n";
}

/// In UTF-16 of either byte order. "\x10" to "\x1F" are halves of a pair of surrogates.
std::string halves(const std::string& text, bool isBigEndian) {
    std::string bytes = isBigEndian ? "\xFE\xFF" : "\xFF\xFE";
    for (const char character : text) {
        const bool isHalf = character >= '\x10' && character < '\x20';
        const std::string unit = {character, isHalf ? '\xD8' : '\0'};
        bytes += isBigEndian ? std::string(unit.rbegin(), unit.rend()) : unit;
    }
    return bytes;
}

INSTANTIATE_TEST_SUITE_P(
    Files, BootBytesTest,
    testing::Values(
        BytesRow{{"First"}, robots("R\xFD", "R\xFD", "R\xFE", "C"), 0, false},
        BytesRow{{"Second"}, robots("R\xFE", "R\xFD", "R\xFE", "C"), 1, false},
        BytesRow{{"None"}, robots("R\xFF", "R\xFD", "R\xFE", "C"), 0, false},
        BytesRow{{"InQuotes"}, robots("\"R\xFD\"", "R\xFD", "R\xFE", "C"), 0, false},
        BytesRow{{"Both"}, robots("R\xFE", "R\xFE", "R\xFE", "C"), 1, true},
        BytesRow{{"AnotherRobot"}, robots("R%253;", "R\xFE", "R\xFD", "R%253;"), 2, false},
        BytesRow{
            {"TwoCodesOfOneCharacter"}, robots("\x87\x9A", "\x87\x9A", "\x81\xE6", "C"), 0, false},
        BytesRow{
            {"Utf8WithMark"}, "\xEF\xBB\xBF" + robots("R\xFD", "R\xFD", "R\xFE", "C"), 0, false},
        BytesRow{{"Utf16"}, halves(robots("R\x11", "R\x11", "R\x12", "C"), false), 0, false},
        BytesRow{{"Utf16OfTheOtherOrder"},
                 halves(robots("R\x11", "R\x11", "R\x12", "C"), true),
                 0,
                 false}),
    tests::rowName);

TEST_F(RobotRegistryTest, AnUnknownBootNameSelectsTheFirstRobot) {
    read("[Boot]\r\nName=X\r\n[Robot]\r\nName=A\r\n[Robot]\r\nName=B\r\n");
    EXPECT_EQ(state_.CurrentRobotIndex, 0);
    EXPECT_EQ(state_.CurrentRobot.Name, "A");
    EXPECT_EQ(box_.selected, 0);
}

TEST_F(RobotRegistryTest, BootNamesMatchExactly) {
    read("[Boot]\r\nName=b\r\n[Robot]\r\nName=A\r\n[Robot]\r\nName=B\r\n");
    EXPECT_EQ(state_.CurrentRobotIndex, 0);
}

TEST_F(RobotRegistryTest, AnEmptyFileGivesAnEmptyList) {
    state_.CurrentRobot.Path = "/from/settings";
    box_.names = {"old"};
    read("");
    EXPECT_EQ(robotCount(state_.RobotList), 0U);
    EXPECT_EQ(state_.RobotList.back().Name, endOfRobots);
    EXPECT_TRUE(box_.names.empty());
    EXPECT_EQ(box_.selected, -1);
    EXPECT_EQ(state_.CurrentRobot.Path, "/from/settings");
    EXPECT_TRUE(boxes_.shown.empty());
}

TEST_F(RobotRegistryTest, AFileThatCannotBeReadIsToldAndLeavesTheBox) {
    makeUnreadable();
    box_.names = {"old"};
    registry_.read(box_);
    expectNotRead();
    EXPECT_EQ(box_.names, (std::vector<std::string>{"old"}));
    EXPECT_EQ(state_.CurrentRobot, RobotRecord());
    EXPECT_EQ(robotCount(state_.RobotList), 0U);
}

TEST_F(RobotRegistryTest, AListWithoutSentinelIsRefused) {
    std::vector<RobotRecord> robots(2);
    EXPECT_FALSE(makeFoldersAbsolute(robots, RobotPaths("/opt")));
    robots.back().Name = endOfRobots;
    EXPECT_TRUE(makeFoldersAbsolute(robots, RobotPaths("/opt")));
}

TEST_F(RobotRegistryTest, WritingRewritesTheWholeFile) {
    read(
        "; mine\r\n[Boot]\r\nName=A\r\n[Other]\r\nx=y\r\n[Robot]\r\nName=A\r\n[Robot]\r\nName=B\r\n"
        "IPaddr=1.2.3.4\r\nPath=C:\\jobs\r\n");
    state_.CurrentRobot = state_.RobotList[1];
    EXPECT_TRUE(registry_.write());
    EXPECT_EQ(file(),
              boot("B") + blockOf("A", "", folder_.path()) + blockOf("B", "1.2.3.4", "C:\\jobs"));
}

TEST_F(RobotRegistryTest, NamesThatDifferInTheirOutsideOnlyStayTwoRobots) {
    const std::string robots =
        blockOf(" R1", "10.0.0.1", "C:\\a") + blockOf("R1", "10.0.0.2", "C:\\b") +
        blockOf("R1 ", "10.0.0.3", "C:\\c") + blockOf("'R1'", "10.0.0.4", "C:\\d") +
        blockOf("\"R1\"", "10.0.0.5", "C:\\e");
    read(robots);
    for (std::size_t chosen = 0; chosen < 5; ++chosen) {
        state_.CurrentRobot = state_.RobotList[chosen];
        ASSERT_TRUE(registry_.write());
        EXPECT_TRUE(file().ends_with(robots)) << file();
        registry_.read(box_);
        EXPECT_EQ(state_.CurrentRobotIndex, chosen);
        EXPECT_EQ(state_.CurrentRobot.IPaddr, "10.0.0." + std::to_string(chosen + 1));
    }
}

TEST_F(RobotRegistryTest, AnEditIsRememberedUntilItIsWritten) {
    read("[Robot]\r\nName=A\r\n");
    EXPECT_FALSE(registry_.hasUnwrittenEdit());
    registry_.noteEdit();
    EXPECT_TRUE(registry_.hasUnwrittenEdit());
    EXPECT_TRUE(registry_.write());
    EXPECT_FALSE(registry_.hasUnwrittenEdit());
}

TEST_F(RobotRegistryTest, AnUnreadFileIsLeftAloneWhenNothingWasEdited) {
    makeUnreadable();
    registry_.read(box_);
    EXPECT_TRUE(registry_.write());
    EXPECT_TRUE(folder_.has("robot.ini/inner"));
}

TEST_F(RobotRegistryTest, AnUnreadFileIsKeptAsABackupWhenTheOperatorEdited) {
    makeUnreadable();
    folder_.write("robot.ini.bak", "an older backup");
    registry_.read(box_);
    state_.RobotList.insert(state_.RobotList.begin(), RobotRecord())->Name = "NEW";
    registry_.noteEdit();
    EXPECT_TRUE(registry_.write());
    EXPECT_EQ(folder_.read("robot.ini.bak"), "an older backup");
    EXPECT_TRUE(folder_.has("robot.ini.bak2/inner"));
    EXPECT_NE(file().find("Name=NEW\r\n"), std::string::npos);
    EXPECT_TRUE(registry_.write());
    EXPECT_FALSE(folder_.has("robot.ini.bak3"));
}

TEST_F(RobotRegistryTest, AFileThatIsReadWholeAtLastIsRewritten) {
    makeUnreadable();
    registry_.read(box_);
    std::filesystem::remove_all(folder_.path("robot.ini"));
    read("[Robot]\r\nName=A\r\n");
    EXPECT_TRUE(registry_.write());
    EXPECT_EQ(file(), boot("A") + blockOf("A", "", folder_.path()));
}

TEST_F(RobotRegistryTest, TheBoxCanBeFilledAgain) {
    read("[Robot]\r\nName=A\r\n[Robot]\r\nName=B\r\n");
    state_.RobotList[0].Name = "renamed";
    state_.CurrentRobotIndex = 1;
    registry_.fillBox(box_);
    EXPECT_EQ(box_.names, (std::vector<std::string>{"renamed", "B"}));
    EXPECT_EQ(box_.selected, 1);
    state_.CurrentRobotIndex = 7;
    registry_.fillBox(box_);
    EXPECT_EQ(box_.selected, -1);
}

struct EncodingCase {
    const char* name;
    TextEncoding encoding;
};

class RobotRegistryEncodingTest : public RobotRegistryTest,
                                  public testing::WithParamInterface<EncodingCase> {};

TEST_P(RobotRegistryEncodingTest, IsKept) {
    const std::string text = boot("溶接ﾛﾎﾞｯﾄ") + blockOf("塗装", "1.2.3.4", "C:\\a") +
                             blockOf("溶接ﾛﾎﾞｯﾄ", "5.6.7.8", "C:\\作業");
    const std::string bytes = encodeText(text, GetParam().encoding).value();
    read(bytes);
    EXPECT_EQ(state_.CurrentRobotIndex, 1);
    EXPECT_EQ(state_.CurrentRobot.Name, "溶接ﾛﾎﾞｯﾄ");
    EXPECT_EQ(state_.CurrentRobot.Path, "C:\\作業");
    EXPECT_TRUE(registry_.write());
    EXPECT_EQ(file(), bytes);
}

INSTANTIATE_TEST_SUITE_P(, RobotRegistryEncodingTest,
                         testing::Values(EncodingCase{"CodePage", TextEncoding::CodePage},
                                         EncodingCase{"Utf8", TextEncoding::Utf8},
                                         EncodingCase{"Utf8WithMark", TextEncoding::Utf8WithMark},
                                         EncodingCase{"Utf16", TextEncoding::Utf16LittleEndian}),
                         [](const auto& test) { return test.param.name; });

TEST_F(RobotRegistryTest, APlainFileGoesOnInTheCodePage) {
    read("[Robot]\r\nName=A\r\nPath=/a\r\n");
    state_.RobotList[0].Name = "溶接";
    EXPECT_TRUE(registry_.write());
    EXPECT_EQ(decodeText(file()).encoding, TextEncoding::CodePage);
}

TEST_F(RobotRegistryTest, APlainFileGoesOnInUtf8WhereTheCodePageCannot) {
    for (const std::string name : {"Schwei\u00DFroboter", "ﾃｱ"}) {
        // The second name's code page bytes would be taken for UTF-8.
        read("[Robot]\r\nName=A\r\nPath=/a\r\n");
        state_.RobotList[0].Name = name;
        state_.CurrentRobot = state_.RobotList[0];
        EXPECT_TRUE(registry_.write());
        registry_.read(box_);
        EXPECT_EQ(state_.BootName, name);
        EXPECT_EQ(state_.CurrentRobot.Name, name);
    }
}

// Without its other name the code page's bytes would be taken for UTF-8.
TEST_F(RobotRegistryTest, ACodePageFileGoesOnInUtf8WhereItWouldBeReadOtherwise) {
    read("[Robot]\r\nName=\x83\x7B\r\nPath=/a\r\n");
    state_.RobotList[0].Name = "ﾓｰ";
    state_.CurrentRobot = state_.RobotList[0];
    EXPECT_TRUE(registry_.write());
    registry_.read(box_);
    EXPECT_EQ(state_.RobotList[0].Name, "ﾓｰ");
    EXPECT_EQ(state_.BootName, "ﾓｰ");
}

struct BootRow : tests::NamedRow {
    const char* block;
    const char* boot;
};

class BootNameTest : public RobotRegistryTest, public testing::WithParamInterface<BootRow> {};

/// Whatever the file's encoding, the name is what a profile read gives.
TEST_P(BootNameTest, IsReadAsInAnyProfile) {
    const std::string robots = "[Robot]\r\nName=R1\r\n[Robot]\r\nName=";
    const std::string text = GetParam().block + robots;
    read(text + "R2\r\n");
    EXPECT_EQ(state_.BootName, GetParam().boot) << "plain";
    for (const auto encoding : {TextEncoding::CodePage, TextEncoding::Utf8,
                                TextEncoding::Utf8WithMark, TextEncoding::Utf16LittleEndian}) {
        read(encodeText(text + "ボ\r\n", encoding).value());
        EXPECT_EQ(state_.BootName, GetParam().boot) << int(encoding);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Blocks, BootNameTest,
    testing::Values(BootRow{{"Usual"}, "[Boot]\r\nName=R2\r\n", "R2"},
                    BootRow{{"LetterCaseOfTheSection"}, "[boot]\r\nName=R2\r\n", "R2"},
                    BootRow{{"LetterCaseOfTheKey"}, "[Boot]\r\nNAME=R2\r\n", "R2"},
                    BootRow{{"TheFirstNameWins"}, "[Boot]\r\nName=R2\r\nName=R1\r\n", "R2"},
                    BootRow{{"OuterBlanks"}, "[Boot]\r\n Name = R2 \r\n", "R2"},
                    BootRow{{"BlanksBeforeTheSection"}, "  [Boot]\r\nName=R2\r\n", "R2"},
                    BootRow{{"Quotes"}, "[Boot]\r\nName=\"R 2\"\r\n", "R 2"},
                    BootRow{{"CommasAndEqualSigns"}, "[Boot]\r\nName=R2,x=y\r\n", "R2,x=y"},
                    BootRow{{"NoName"}, "[Boot]\r\n", ""},
                    BootRow{{"NoSection"}, "Name=R2\r\n", ""}),
    tests::rowName);

TEST_F(RobotRegistryTest, TheBootNameEndsAtANul) {
    read(std::string("[Boot]\r\nName=R2\0x\r\n[Robot]\r\nName=ボ\r\n", 38));
    EXPECT_EQ(state_.BootName, "R2");
}

TEST_F(RobotRegistryTest, ACodePageFileGoesOnInUtf8WhereANameNeedsIt) {
    read(encodeText(boot("溶接") + blockOf("溶接", "", "/a"), TextEncoding::CodePage).value());
    const std::string name = "Prüfstand \xF0\x9F\xA4\x96";
    state_.RobotList.insert(state_.RobotList.begin(), RobotRecord())->Name = name;
    state_.RobotList[0].Path = "C:\\Prüfung";
    state_.CurrentRobot = state_.RobotList[0];
    ASSERT_TRUE(registry_.write());
    EXPECT_FALSE(file().starts_with("\xEF\xBB\xBF")) << "a mark would hide the first section";
    registry_.read(box_);
    EXPECT_EQ(box_.names, (std::vector<std::string>{name, "溶接"}));
    EXPECT_EQ(state_.CurrentRobot.Name, name);
    EXPECT_EQ(state_.CurrentRobot.Path, "C:\\Prüfung");
}

TEST_F(RobotRegistryTest, ANameThatNoEncodingHoldsIsRefusedByName) {
    read("[Robot]\r\nName=A\r\n");
    const std::string before = file();
    state_.RobotList.insert(state_.RobotList.begin(), RobotRecord())->Name = "half \xE3\x82";
    const Outcome written = registry_.write();
    ASSERT_FALSE(written);
    EXPECT_TRUE(written.reason().starts_with("m92[half ")) << written.reason();
    EXPECT_EQ(file(), before);
}

TEST_F(RobotRegistryTest, AFileWithBytesOfAnotherCodePageIsLeftAsItIs) {
    // Two names that are told apart only by what this code page does not know.
    const std::string content =
        boot("R\xFC") + blockOf("R\xFC", "10.0.0.1", "/a") + blockOf("R\xFE", "10.0.0.2", "/b");
    read(content);
    ASSERT_TRUE(registry_.write());
    EXPECT_EQ(file(), content);
}

TEST_F(RobotRegistryTest, NamesThatReadingMadeEqualAreNotWrittenAfterAnEdit) {
    const std::string content = blockOf("R\xFC", "10.0.0.1", "/a") +
                                blockOf("S", "10.0.0.3", "/c") + blockOf("R\xFE", "10.0.0.2", "/b");
    read(content);
    state_.RobotList[1].Name = "T";
    registry_.noteEdit();
    const Outcome refused = registry_.write();
    ASSERT_FALSE(refused);
    EXPECT_EQ(refused.reason(), "m381[R\uFFFD]");
    EXPECT_EQ(file(), content);
    EXPECT_FALSE(folder_.has("robot.ini.bak"));
    EXPECT_TRUE(registry_.hasUnwrittenEdit());
    state_.RobotList[0].Name = "R";
    ASSERT_TRUE(registry_.write());
    EXPECT_EQ(folder_.read("robot.ini.bak"), content);
}

TEST_F(RobotRegistryTest, EqualNamesOfAFileThatWasReadWholeAreWritten) {
    read(blockOf("B", "10.0.0.1", "C:\\a") + blockOf("B", "10.0.0.2", "C:\\b"));
    registry_.noteEdit();
    EXPECT_TRUE(registry_.write());
    EXPECT_EQ(file(),
              boot("B") + blockOf("B", "10.0.0.1", "C:\\a") + blockOf("B", "10.0.0.2", "C:\\b"));
}

TEST_F(RobotRegistryTest, GarbageGivesAnEmptyList) {
    for (const std::string& garbage :
         {std::string(10'000'000, 'x'), std::string("\0\0\xFF\xFE\0", 5), std::string("\xFF\xFE["),
          std::string("[Robot"), std::string("\xEF\xBB\xBF")}) {
        read(garbage);
        EXPECT_EQ(robotCount(state_.RobotList), 0U);
        EXPECT_TRUE(boxes_.shown.empty());
    }
}

} // namespace
} // namespace vantrel
