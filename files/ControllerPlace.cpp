#include "files/ControllerPlace.h"

#include "base/ApplicationState.h"
#include "link/ShownText.h"

namespace vantrel {

std::string controllerName(const ApplicationState& state) {
    if (state.TransMode == TransferMode::Bsc)
        return "COM" + std::to_string(state.Port);
    return shownText(state.CurrentRobot.Name);
}

std::string controllerPlace(const ApplicationState& state) {
    if (state.TransMode == TransferMode::Bsc)
        return controllerName(state);
    return controllerName(state) + " (" + shownText(state.CurrentRobot.IPaddr) + ")";
}

std::string towardController(const ApplicationState& state) {
    return "\u2192 " + controllerPlace(state);
}

std::string fromController(const ApplicationState& state) {
    return "\u2190 " + controllerPlace(state);
}

} // namespace vantrel
