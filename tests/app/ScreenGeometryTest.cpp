#include "app/window/ScreenGeometry.h"

#include "support/NamedRow.h"

#include <cstdint>
#include <limits>

#include <gtest/gtest.h>

namespace vantrel {
namespace {

TEST(TwipsTest, AreRoundedToThePixelsOfTheResolution) {
    EXPECT_EQ(pixelsFromTwips(9720, 96), 648);
    EXPECT_EQ(pixelsFromTwips(9720, 144), 972);
    EXPECT_EQ(pixelsFromTwips(1400, 96), 93);
    EXPECT_EQ(pixelsFromTwips(-30, 96), -2);
}

TEST(TwipsTest, NonsenseStaysWithinWhatAScreenCanBe) {
    EXPECT_EQ(pixelsFromTwips(std::numeric_limits<std::int32_t>::max(), 192), 32767);
    EXPECT_EQ(pixelsFromTwips(std::numeric_limits<std::int32_t>::min(), 192), -32767);
}

TEST(TwipsTest, AWidthThatNobodyChangedKeepsItsTwips) {
    for (const std::int32_t stored : {0, 700, 1400, 1499, 1500})
        for (const int dpi : {96, 120, 144, 192})
            EXPECT_EQ(twipsUnlessUnchanged(pixelsFromTwips(stored, dpi), dpi, stored), stored);
}

TEST(TwipsTest, AWidthThatWasChangedIsMeasured) {
    EXPECT_EQ(twipsUnlessUnchanged(94, 96, 1400), 1410);
    EXPECT_EQ(twipsUnlessUnchanged(1, 192, 1400), 7.5);
}

constexpr int farAway = std::numeric_limits<int>::max() / 2;
const std::vector<ScreenRect> twoScreens{{0, 0, 1280, 1000}, {1280, 0, 1920, 1040}};

struct Row {
    const char* name;
    ScreenRect wished;
    ScreenRect placed;
};

class ScreenPlaceTest : public testing::TestWithParam<Row> {};

TEST_P(ScreenPlaceTest, BringsBackWhatNobodyCouldTakeHoldOf) {
    EXPECT_EQ(placeOnScreens(GetParam().wished, twoScreens), GetParam().placed);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ScreenPlaceTest,
    testing::Values(
        Row{"OnTheFirst", {40, 40, 640, 480}, {40, 40, 640, 480}},
        Row{"OnTheSecond", {2000, 500, 640, 480}, {2000, 500, 640, 480}},
        Row{"MostlyOffToTheRight", {3090, 500, 640, 480}, {3090, 500, 640, 480}},
        Row{"TooFarToTheRight", {3110, 500, 640, 480}, {0, 0, 640, 480}},
        Row{"MostlyOffToTheLeft", {-540, 10, 640, 480}, {-540, 10, 640, 480}},
        Row{"TooFarToTheLeft", {-560, 10, 640, 480}, {0, 0, 640, 480}},
        Row{"TitleAboveTheScreen", {40, -30, 640, 480}, {0, 0, 640, 480}},
        Row{"TitleBelowTheScreen", {40, 990, 640, 480}, {0, 0, 640, 480}},
        Row{"AtTheEndOfTheWorld", {farAway, farAway, 640, 480}, {0, 0, 640, 480}},
        Row{"LargerThanTheScreenItComesBackTo", {9000, 0, 4000, 3000}, {0, 0, 1280, 1000}}),
    [](const auto& test) { return test.param.name; });

TEST(ScreenPlaceTest, WithoutScreensTheWishStands) {
    EXPECT_EQ(placeOnScreens({9000, 0, 640, 480}, {}), (ScreenRect{9000, 0, 640, 480}));
}

struct DialogRow : tests::NamedRow {
    ScreenRect owner;
    int width, height;
    int left, top;
};

class CentredDialogTest : public testing::TestWithParam<DialogRow> {};

TEST_P(CentredDialogTest, IsOverTheOwnerAndOnTheScreen) {
    const auto& row = GetParam();
    const auto place = centredOver(row.owner, row.width, row.height, {100, 50, 1000, 800});
    EXPECT_EQ(place, (ScreenRect{row.left, row.top, row.width, row.height}));
}

INSTANTIATE_TEST_SUITE_P(
    Places, CentredDialogTest,
    testing::Values(DialogRow{{"Inside"}, {200, 150, 600, 400}, 300, 200, 350, 250},
                    DialogRow{{"LargerThanItsOwner"}, {500, 400, 100, 100}, 300, 200, 400, 350},
                    DialogRow{{"OwnerBeyondTheRight"}, {1000, 150, 600, 400}, 300, 200, 800, 250},
                    DialogRow{{"OwnerBelowTheBottom"}, {200, 800, 600, 400}, 300, 200, 350, 650},
                    DialogRow{{"OwnerLeftAndAbove"}, {-500, -300, 600, 400}, 300, 200, 100, 50},
                    DialogRow{{"LargerThanTheScreen"}, {200, 150, 600, 400}, 2000, 900, 100, 50}),
    tests::rowName);

} // namespace
} // namespace vantrel
