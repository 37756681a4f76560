#include "console/Interruption.h"

#include <csignal>

#include <gtest/gtest.h>

namespace vantrel {
namespace {

class InterruptionTest : public testing::TestWithParam<int> {
  protected:
    InterruptionTest() { Interruption::watch(); }
    ~InterruptionTest() override {
        std::signal(SIGINT, SIG_DFL);
        std::signal(SIGTERM, SIG_DFL);
    }
};

INSTANTIATE_TEST_SUITE_P(Signals, InterruptionTest, testing::Values(SIGINT, SIGTERM));

TEST_P(InterruptionTest, TheFirstOneIsNoted) {
    EXPECT_FALSE(Interruption::isWanted());
    std::raise(GetParam());
    EXPECT_TRUE(Interruption::isWanted());
}

TEST_P(InterruptionTest, WatchingAnewForgetsTheOneBefore) {
    std::raise(GetParam());
    Interruption::watch();
    EXPECT_FALSE(Interruption::isWanted());
}

#ifndef _WIN32 // where no test can watch its own end
TEST_P(InterruptionTest, TheSecondOneEndsTheProgramAtOnce) {
    EXPECT_EXIT(
        {
            std::raise(GetParam());
            std::raise(SIGINT);
        },
        testing::ExitedWithCode(130), "");
}
#endif

} // namespace
} // namespace vantrel
