#pragma once

#include "base/Connection.h"

#include <cstdint>
#include <string>

namespace vantrel {

class MessageTable;
struct ApplicationState;

/// The main window's caption: the title and the transfer mode's name.
std::string windowTitle(TransferMode mode, const MessageTable& messages);

/// What of the main window follows the transfer mode.
struct ModeLook {
    bool showsSerialLine = true;   ///< `lblDisp(3)` and `lbl232CParam`
    bool showsRobot = false;       ///< `lblRbtName`, `cmbRbtName`, `lblIPaddr`, `lblIPAddr2`
    std::uint32_t shapeColour = 0; ///< of both mode shapes, 0xRRGGBB
    std::string caption;           ///< of the window

    bool operator==(const ModeLook&) const = default;
};

ModeLook modeLook(TransferMode mode, const MessageTable& messages);

/// Whether the selected controller model has the high-speed link.
bool hispeedAvailable(const ApplicationState& state);

/// The commands `mnuModeBsc` and `mnuModeHiSpeed`, and the rule that a model without the high-speed
/// link leaves that mode. Each returns true when the next operation would reach another machine
/// than before, so that the controller pane has to be emptied; none opens or closes a connection.
bool switchMode(ApplicationState& state, TransferMode mode);
bool leaveUnavailableMode(ApplicationState& state);

/// Turns a stored mode that is neither of the two, or that the model does not have, into BSC.
void normaliseMode(ApplicationState& state);

} // namespace vantrel
