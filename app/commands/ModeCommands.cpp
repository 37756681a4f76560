#include "app/commands/ModeCommands.h"

#include "app/robots/Machine.h"
#include "base/ApplicationState.h"
#include "files/ControllerModels.h"
#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"

namespace vantrel {
namespace {

constexpr std::uint32_t bscColour = 0x0000C0;
constexpr std::uint32_t hispeedColour = 0x00C000;

} // namespace

std::string windowTitle(TransferMode mode, const MessageTable& messages) {
    const auto name = mode == TransferMode::HispeedLink ? message::modeHispeed : message::modeBsc;
    return messages.getMessage(message::title) + "  -- " + messages.getMessage(name) + " --";
}

ModeLook modeLook(TransferMode mode, const MessageTable& messages) {
    const bool hispeed = mode == TransferMode::HispeedLink;
    return {.showsSerialLine = !hispeed,
            .showsRobot = hispeed,
            .shapeColour = hispeed ? hispeedColour : bscColour,
            .caption = windowTitle(mode, messages)};
}

bool hispeedAvailable(const ApplicationState& state) {
    return (controllerModel(state.Controler).capabilities & capabilityHispeed) != 0;
}

bool switchMode(ApplicationState& state, TransferMode mode) {
    const Machine before = machineInForce(state);
    state.TransMode = mode;
    return machineInForce(state) != before;
}

bool leaveUnavailableMode(ApplicationState& state) {
    if (hispeedAvailable(state) || state.TransMode != TransferMode::HispeedLink)
        return false;
    return switchMode(state, TransferMode::Bsc);
}

void normaliseMode(ApplicationState& state) {
    if (state.TransMode != TransferMode::HispeedLink || !hispeedAvailable(state))
        state.TransMode = TransferMode::Bsc;
}

} // namespace vantrel
