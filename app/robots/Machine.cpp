#include "app/robots/Machine.h"

#include "app/robots/RobotFile.h"
#include "base/ApplicationState.h"
#include "link/Snappy.h"

namespace vantrel {

Machine machineInForce(const ApplicationState& state) {
    if (state.TransMode == TransferMode::HispeedLink)
        return {.mode = state.TransMode, .port = 0, .address = state.CurrentRobot.IPaddr};
    return {.mode = TransferMode::Bsc, .port = state.Port, .address = {}};
}

std::optional<std::size_t> currentRobotPlace(const ApplicationState& state) {
    const auto place = static_cast<std::size_t>(state.CurrentRobotIndex);
    if (state.CurrentRobotIndex < 0 || place >= robotCount(state.RobotList))
        return std::nullopt;
    return place;
}

void passSessionParameters(const ApplicationState& state, Snappy& session) {
    session.port = state.Port;
    session.Baudrate = state.Baudrate;
    session.parity = state.Parity;
    session.DataLen = state.DataLen;
    session.StopBit = state.StopBit;
    session.IPaddress = state.CurrentRobot.IPaddr;
}

} // namespace vantrel
