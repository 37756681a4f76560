#include "simulator/Links.h"

#include <gtest/gtest.h>

namespace vantrel::simulator {
namespace {

Link link() {
    return {WorkingFolder("/tmp"), 1, {}, {}, {}, 0, {}};
}

TEST(Links, GiveDifferentHandlesAboveZero) {
    Links links;
    const auto first = links.open(link());
    const auto second = links.open(link());

    ASSERT_TRUE(first && second);
    EXPECT_GT(*first, 0);
    EXPECT_NE(*first, *second);
    EXPECT_NE(links.find(*first), nullptr);
    EXPECT_NE(links.find(*first), links.find(*second));
}

TEST(Links, FindNothingForOtherHandles) {
    Links links;
    const auto handle = *links.open(link());
    links.close(handle);

    for (const std::int16_t other : {handle, std::int16_t{0}, std::int16_t{-1}, std::int16_t{999}})
        EXPECT_EQ(links.find(other), nullptr) << other;
}

TEST(Links, DoNotGiveAClosedHandleOutAgainSoon) {
    Links links;
    const auto first = *links.open(link());
    links.close(first);

    EXPECT_NE(*links.open(link()), first);
}

TEST(Links, RefuseMoreThanTheirNumberUntilOneIsClosed) {
    Links links;
    std::int16_t last = 0;
    for (std::size_t count = 0; count < Links::most; ++count)
        last = links.open(link()).value();

    EXPECT_EQ(links.open(link()), std::nullopt);
    links.close(last);
    EXPECT_TRUE(links.open(link()));
}

TEST(Links, StartAgainAtOneWhenTheNumbersAreUsedUpAndPassOverOpenOnes) {
    Links links;
    const auto kept = *links.open(link());
    std::int16_t handle = 0;
    for (int count = 2; count <= 32767; ++count) {
        handle = *links.open(link());
        links.close(handle);
    }
    EXPECT_EQ(handle, 32767);
    EXPECT_EQ(*links.open(link()), kept + 1);
}

} // namespace
} // namespace vantrel::simulator
