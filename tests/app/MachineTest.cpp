#include "app/robots/Machine.h"

#include "base/ApplicationState.h"

#include <gtest/gtest.h>

namespace vantrel {
namespace {

ApplicationState stateIn(TransferMode mode) {
    ApplicationState state;
    state.TransMode = mode;
    state.Port = 3;
    state.CurrentRobot.IPaddr = "10.0.0.5";
    return state;
}

TEST(MachineTest, InBscModeThePortDecides) {
    const Machine before = machineInForce(stateIn(TransferMode::Bsc));
    ApplicationState state = stateIn(TransferMode::Bsc);
    state.CurrentRobot.IPaddr = "10.0.0.6";
    EXPECT_EQ(machineInForce(state), before);
    state.Port = 4;
    EXPECT_NE(machineInForce(state), before);
}

TEST(MachineTest, InHighSpeedModeTheAddressDecides) {
    const Machine before = machineInForce(stateIn(TransferMode::HispeedLink));
    ApplicationState state = stateIn(TransferMode::HispeedLink);
    state.Port = 4;
    EXPECT_EQ(machineInForce(state), before);
    state.CurrentRobot.IPaddr = "10.0.0.6";
    EXPECT_NE(machineInForce(state), before);
}

TEST(MachineTest, AnotherModeIsAnotherMachine) {
    EXPECT_NE(machineInForce(stateIn(TransferMode::Bsc)),
              machineInForce(stateIn(TransferMode::HispeedLink)));
}

} // namespace
} // namespace vantrel
