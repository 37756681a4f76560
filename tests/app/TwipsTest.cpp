#include "app/window/WindowPlaces.h"

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

} // namespace
} // namespace vantrel
