#include "app/Machine.h"

#include "base/ApplicationState.h"

namespace vantrel {

Machine machineInForce(const ApplicationState& state) {
    if (state.TransMode == TransferMode::HispeedLink)
        return {.mode = state.TransMode, .port = 0, .address = state.CurrentRobot.IPaddr};
    return {.mode = TransferMode::Bsc, .port = state.Port, .address = {}};
}

} // namespace vantrel
