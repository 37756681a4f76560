#include "AppFakes.h"
#include "app/robots/Machine.h"

#include <gtest/gtest.h>

namespace vantrel {
namespace {

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
