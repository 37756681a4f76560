#include "base/DateText.h"

#include <gtest/gtest.h>

namespace vantrel {
namespace {

TEST(DateText, HoldsTheWholeDateAndTime) {
    EXPECT_EQ(DateText("2026/11/20 08:05:09").view(), "2026/11/20 08:05:09");
}

TEST(DateText, IsEmptyWhenUnknown) {
    EXPECT_EQ(DateText().view(), "");
}

TEST(DateText, CutsWhatIsTooLong) {
    EXPECT_EQ(DateText("2026/11/20 08:05:09.123").view(), "2026/11/20 08:05:09");
}

TEST(DateText, ComparesByText) {
    EXPECT_EQ(DateText("2026/11/20 08:05:09"), DateText("2026/11/20 08:05:09"));
    EXPECT_FALSE(DateText("2026/11/20 08:05:09") == DateText("2026/11/20 08:05:10"));
    EXPECT_LT(DateText("2026/09/30 23:59:59").view(), DateText("2026/10/01 00:00:00").view());
}

} // namespace
} // namespace vantrel
