#include "app/robots/Machine.h"

#include "AppFakes.h"
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

TEST(SessionParametersTest, AreThoseOfTheStateAndTheCurrentRobot) {
    tests::Desk desk;
    desk.state.Port = 7;
    desk.state.Baudrate = 19200;
    desk.state.Parity = 1;
    desk.state.DataLen = 7;
    desk.state.StopBit = 2;
    desk.state.CurrentRobot.IPaddr = "192.168.0.1";
    passSessionParameters(desk.state, desk.session);
    EXPECT_EQ(desk.session.port, 7);
    EXPECT_EQ(desk.session.Baudrate, 19200);
    EXPECT_EQ(desk.session.parity, 1);
    EXPECT_EQ(desk.session.DataLen, 7);
    EXPECT_EQ(desk.session.StopBit, 2);
    EXPECT_EQ(desk.session.IPaddress, "192.168.0.1");
}

} // namespace
} // namespace vantrel
