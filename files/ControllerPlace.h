#pragma once

#include <string>

namespace vantrel {

struct ApplicationState;

// The controller that the next operation reaches, as the operator knows it. A serial line has one
// robot at its end, whichever is chosen for the other mode.

/// "LINE1 WELD", or "COM1" for a serial line.
std::string controllerName(const ApplicationState& state);

/// "LINE1 WELD (192.168.0.11)", or "COM1".
std::string controllerPlace(const ApplicationState& state);

/// The line below a question or a progress that says where a command goes: "→ LINE1 WELD
/// (192.168.0.11)".
std::string towardController(const ApplicationState& state);
/// The same for one that brings files from there.
std::string fromController(const ApplicationState& state);

} // namespace vantrel
