#include "app/SessionParameters.h"

#include "base/ApplicationState.h"
#include "link/Snappy.h"

namespace vantrel {

void passSessionParameters(const ApplicationState& state, Snappy& session) {
    session.port = state.Port;
    session.Baudrate = state.Baudrate;
    session.parity = state.Parity;
    session.DataLen = state.DataLen;
    session.StopBit = state.StopBit;
    session.IPaddress = state.CurrentRobot.IPaddr;
}

} // namespace vantrel
