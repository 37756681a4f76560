#pragma once

#include "base/ApplicationState.h"
#include "base/Result.h"
#include "console/Request.h"

#include <cstdint>
#include <string>
#include <vector>

namespace vantrel {

class MessageTable;

/// A controller to work on, and the folder on the PC that goes with it.
struct Target {
    RobotRecord robot;       ///< named by its address where none is registered for it
    std::int16_t index = -1; ///< in the robot list
    std::string folder;
};

/// The machines that a request means.
struct Targets {
    TransferMode mode = TransferMode::Bsc;
    std::int16_t port = 1;
    std::vector<Target> targets;
    bool areSeveral = false; ///< as they were meant, whichever of them are left
};

/// By the request and, where it is silent, by the settings and robots in `state`. Fails, with words
/// for the operator, where the request does not say for certain which machine is meant.
/// `workingFolder` is what a relative folder of the request starts from.
Result<Targets> chooseTargets(const Request& request, const ApplicationState& state,
                              const std::string& workingFolder, const MessageTable& messages);

/// What tells a machine from every other one of a request, in a text for another process.
std::string relayName(const Targets& targets, const Target& target);

/// Makes it the machine in force, with its folder.
void putInForce(const Targets& targets, const Target& target, ApplicationState& state);

} // namespace vantrel
