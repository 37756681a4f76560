#include "app/settings/WindowText.h"

#include "app/settings/SettingsFile.h"

#include <gtest/gtest.h>

namespace vantrel {
namespace {

using Positions = std::array<std::int32_t, 8>;

struct Case {
    const char* name;
    const char* text;
    Positions expected;
};

class ReadWindowTextTest : public testing::TestWithParam<Case> {};

// What was there before is recognised by its hundreds.
constexpr Positions before{100, 200, 300, 400, 500, 600, 700, 800};

TEST_P(ReadWindowTextTest, FillsThePositions) {
    Positions positions = before;
    readWindowText(GetParam().text, positions);
    EXPECT_EQ(positions, GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    , ReadWindowTextTest,
    testing::Values(
        Case{"Default",
             "0,0,9720,7000,1399.75,700.158,1500.09",
             {0, 0, 9720, 7000, 1400, 700, 1500, 800}},
        Case{"FewerFieldsLeaveTheRest", "10,20,30", {10, 20, 30, 400, 500, 600, 700, 800}},
        Case{"TheNinthFieldIsDropped",
             "0,0,9720,7000,1399.75,700.158,1500.09,5,6",
             {0, 0, 9720, 7000, 1400, 700, 1500, 5}},
        Case{"Empty", "", before},
        Case{"FieldThatIsNoNumber", "1,x,3", {1, 200, 3, 400, 500, 600, 700, 800}},
        Case{"FieldWithATail", "1,2x,3", {1, 200, 3, 400, 500, 600, 700, 800}},
        Case{"EmptyFields", ",,3,", {100, 200, 3, 400, 500, 600, 700, 800}},
        Case{"Blanks", " 1 , 2 ,3 ", {1, 2, 3, 400, 500, 600, 700, 800}},
        Case{"Negative", "-15,-7.6,3", {-15, -8, 3, 400, 500, 600, 700, 800}},
        Case{"HalvesGoToTheEvenNumber", "0.5,1.5,2.5,3", {0, 2, 2, 3, 500, 600, 700, 800}},
        Case{"TooLargeForTheField",
             "3000000000,2,-3000000000",
             {100, 2, 300, 400, 500, 600, 700, 800}},
        Case{"TheLastFieldIsSinglePrecision",
             "16777217,16777217",
             {16777217, 16777216, 300, 400, 500, 600, 700, 800}},
        Case{"TheLastFieldIsBeyondSinglePrecision",
             "1,1e300",
             {1, 200, 300, 400, 500, 600, 700, 800}}),
    [](const auto& test) { return test.param.name; });

WindowPlacement normalPlacement() {
    return {.isNormal = true,
            .left = 15,
            .top = 30,
            .width = 12000,
            .height = 8000,
            .columnWidths = {1410, 700, 1500}};
}

TEST(WindowTextTest, ANormalWindowGivesItsOwnPlacement) {
    EXPECT_EQ(windowText({0, 0, 9720, 7000, 1, 2, 3, 0}, normalPlacement(), ""),
              "15,30,12000,8000,1410,700,1500");
}

TEST(WindowTextTest, AMaximisedWindowGivesThePlacementThatWasRead) {
    WindowPlacement placement = normalPlacement();
    placement.isNormal = false;
    EXPECT_EQ(windowText({5, 6, 9720, 7000, 1, 2, 3, 0}, placement, ""),
              "5,6,9720,7000,1410,700,1500");
}

TEST(WindowTextTest, AFractionIsKept) {
    WindowPlacement placement = normalPlacement();
    placement.columnWidths = {1399.75, 700.158, 1500.09};
    EXPECT_EQ(windowText({}, placement, ""), "15,30,12000,8000,1399.75,700.158,1500.09");
}

TEST(WindowTextTest, NumbersThatNobodyChangedAreWrittenBackAsTheyWereRead) {
    Positions positions{};
    readWindowText(defaultWindowText, positions);
    const WindowPlacement untouched{.isNormal = true,
                                    .left = 0,
                                    .top = 0,
                                    .width = 9720,
                                    .height = 7000,
                                    .columnWidths = {1400, 700, 1500}};
    EXPECT_EQ(windowText(positions, untouched, defaultWindowText), defaultWindowText);
}

// Only the last number passes through single precision, and 75700700.158 is last here alone.
TEST(WindowTextTest, AShortStoredTextKeepsItsNumberWhenOthersFollow) {
    Positions positions{};
    readWindowText("75700700.158", positions);
    WindowPlacement unmoved = normalPlacement();
    unmoved.left = positions[0];
    Positions again{};
    readWindowText(windowText(positions, unmoved, "75700700.158"), again);
    EXPECT_EQ(again[0], positions[0]);
}

TEST(WindowTextTest, AnUnreadableStoredTextKeepsNoFraction) {
    EXPECT_EQ(windowText({}, normalPlacement(), "x,y,,nan,inf"), "15,30,12000,8000,1410,700,1500");
}

} // namespace
} // namespace vantrel
