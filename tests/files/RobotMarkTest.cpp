#include "files/RobotMark.h"

#include "base/ApplicationState.h"
#include "lang/MessageTable.h"
#include "support/NamedRow.h"

#include <gtest/gtest.h>

namespace vantrel {
namespace {

RobotRecord marked(const std::string& colour, const std::string& label) {
    RobotRecord robot;
    robot.Colour = colour;
    robot.Label = label;
    return robot;
}

MessageTable colourNames() {
    MessageTable messages;
    messages.replace({{6513, "", "red"}, {6517, "", "blue"}});
    return messages;
}

struct LabelRow : tests::NamedRow {
    std::string given;
    const char* shown;
};

class CleanLabelTest : public testing::TestWithParam<LabelRow> {};

TEST_P(CleanLabelTest, IsWhatCanBeSeen) {
    EXPECT_EQ(cleanLabel(GetParam().given), GetParam().shown);
}

INSTANTIATE_TEST_SUITE_P(
    , CleanLabelTest,
    testing::Values(LabelRow{{"Plain"}, "LIVE, LINE=1", "LIVE, LINE=1"},
                    LabelRow{{"Blanks"}, "  LIVE LINE ", "LIVE LINE"},
                    LabelRow{{"Control"}, "LIVE\x01\x7F LINE\t", "LIVE LINE"},
                    LabelRow{{"Direction"}, "A\xE2\x80\xAE\x42", "AB"},
                    LabelRow{{"Invisible"}, "\u200B\uFEFF\u00AD\u3164", ""},
                    LabelRow{{"NoText"}, "A\xFF", "A\xEF\xBF\xBD"},
                    LabelRow{{"Long"}, "0123456789ABCDEFG", "0123456789ABCDEF"},
                    LabelRow{{"LongBehindBlanks"}, "  123456789ABCDEF0 x", "123456789ABCDEF0"},
                    LabelRow{{"Wide"}, "本番ライン", "本番ライン"}, LabelRow{{"Empty"}, "\t ", ""}),
    tests::rowName);

TEST(RobotMarkTest, NamesTheLabelElseTheColour) {
    const MessageTable messages = colourNames();
    EXPECT_EQ(robotMark(messages, marked("", "")), PlaceMark());
    EXPECT_EQ(robotMark(messages, marked("Red", "LIVE")), (PlaceMark{"LIVE", 0xD00000, "red"}));
    EXPECT_EQ(robotMark(messages, marked(" Blue", " ")), (PlaceMark{"blue", 0x0060D0, "blue"}));
    EXPECT_EQ(robotMark(messages, marked("", "LIVE")), (PlaceMark{.text = "LIVE"}));
}

TEST(RobotMarkTest, AWordThatNamesNoColourIsNone) {
    for (const char* word : {"red", "Pink", "Red, dark", "#FF0000", "7"})
        EXPECT_FALSE(markColourOf(marked(word, ""))) << word;
}

TEST(RobotMarkTest, ASerialLineHasNone) {
    ApplicationState state;
    state.CurrentRobot = marked("Red", "LIVE");
    EXPECT_EQ(markInForce(colourNames(), state), PlaceMark());
    state.TransMode = TransferMode::HispeedLink;
    EXPECT_EQ(markInForce(colourNames(), state).text, "LIVE");
}

TEST(RobotMarkDraftTest, WhatIsLeftAloneStaysAsItIs) {
    const RobotRecord odd = marked("Pink", " \x01 LIVE LINE OF THE SECOND HALL");
    RobotMarkDraft draft(odd);
    draft.chooseColour(draft.colour());
    draft.setLabel(draft.label());
    EXPECT_EQ(draft.robot(), odd);
    draft.setLabel("TEST");
    EXPECT_EQ(draft.robot(), marked("Pink", "TEST"));
    draft.chooseColour(0);
    EXPECT_EQ(draft.robot(), marked("Red", "TEST"));
    draft.chooseColour({});
    draft.setLabel("");
    EXPECT_EQ(draft.robot(), marked("", ""));
}

} // namespace
} // namespace vantrel
