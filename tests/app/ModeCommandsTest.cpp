#include "app/commands/ModeCommands.h"

#include "AppFakes.h"

#include <gtest/gtest.h>

namespace vantrel {
namespace {

constexpr std::int16_t aster = 1; ///< the model without the high-speed link
constexpr std::int16_t eridan = 4;

ApplicationState stateOf(int controler, int mode) {
    ApplicationState state;
    state.Controler = static_cast<std::int16_t>(controler);
    state.TransMode = static_cast<TransferMode>(mode);
    return state;
}

TEST(ModeCommandsTest, BscShowsTheSerialLineInBlue) {
    EXPECT_EQ(modeLook(TransferMode::Bsc, tests::numberedMessages()),
              (ModeLook{true, false, 0x0000C0, "m0  -- m191 --"}));
}

TEST(ModeCommandsTest, HighSpeedShowsTheRobotInGreen) {
    EXPECT_EQ(modeLook(TransferMode::HispeedLink, tests::numberedMessages()),
              (ModeLook{false, true, 0x00C000, "m0  -- m190 --"}));
}

TEST(ModeCommandsTest, EveryModelButAsterHasTheHighSpeedLink) {
    for (const int controler : {0, 2, 3, 4, 5})
        EXPECT_TRUE(hispeedAvailable(stateOf(controler, 1))) << controler;
    for (const int controler : {1, -1, 6, 32767})
        EXPECT_FALSE(hispeedAvailable(stateOf(controler, 1))) << controler;
}

TEST(ModeCommandsTest, SwitchingKeepsTheChosenRobot) {
    ApplicationState state = stateOf(eridan, 16);
    state.CurrentRobotIndex = 2;
    state.CurrentRobot.Name = "R2";
    EXPECT_TRUE(switchMode(state, TransferMode::Bsc));
    EXPECT_EQ(state.TransMode, TransferMode::Bsc);
    EXPECT_TRUE(switchMode(state, TransferMode::HispeedLink));
    EXPECT_EQ(state.TransMode, TransferMode::HispeedLink);
    EXPECT_EQ(state.CurrentRobotIndex, 2);
    EXPECT_EQ(state.CurrentRobot.Name, "R2");
}

TEST(ModeCommandsTest, SwitchingToTheModeInForceReachesTheSameMachine) {
    ApplicationState state = stateOf(eridan, 16);
    EXPECT_FALSE(switchMode(state, TransferMode::HispeedLink));
}

TEST(ModeCommandsTest, AModelWithoutHighSpeedLinkForcesBsc) {
    ApplicationState state = stateOf(aster, 16);
    EXPECT_TRUE(leaveUnavailableMode(state));
    EXPECT_EQ(state.TransMode, TransferMode::Bsc);
    EXPECT_FALSE(leaveUnavailableMode(state));
}

TEST(ModeCommandsTest, AModelWithHighSpeedLinkKeepsItsMode) {
    ApplicationState state = stateOf(eridan, 16);
    EXPECT_FALSE(leaveUnavailableMode(state));
    EXPECT_EQ(state.TransMode, TransferMode::HispeedLink);
}

struct StoredMode {
    const char* name;
    std::int16_t controler;
    std::int16_t stored;
    TransferMode expected;
};

class NormaliseModeTest : public testing::TestWithParam<StoredMode> {};

TEST_P(NormaliseModeTest, GivesAModeThatExists) {
    ApplicationState state = stateOf(GetParam().controler, GetParam().stored);
    normaliseMode(state);
    EXPECT_EQ(state.TransMode, GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    , NormaliseModeTest,
    testing::Values(StoredMode{"Zero", eridan, 0, TransferMode::Bsc},
                    StoredMode{"Bsc", eridan, 1, TransferMode::Bsc},
                    StoredMode{"HighSpeed", eridan, 16, TransferMode::HispeedLink},
                    StoredMode{"HighSpeedWithoutTheLink", aster, 16, TransferMode::Bsc},
                    StoredMode{"HighSpeedOfNoModel", 9, 16, TransferMode::Bsc},
                    StoredMode{"Unknown", eridan, 17, TransferMode::Bsc},
                    StoredMode{"Negative", eridan, -16, TransferMode::Bsc}),
    [](const auto& test) { return test.param.name; });

} // namespace
} // namespace vantrel
