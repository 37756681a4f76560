#pragma once

#include "base/Connection.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

namespace vantrel {

class Snappy;
struct ApplicationState;

/// The controller that the next operation would reach: a serial port in BSC mode, an address in the
/// high-speed mode. When it changes, a directory that was read before belongs to another machine.
struct Machine {
    TransferMode mode = TransferMode::Bsc;
    std::int16_t port = 0;
    std::string address;

    bool operator==(const Machine&) const = default;
};

Machine machineInForce(const ApplicationState& state);

/// The place of the robot in force among the registered ones. It is none of them after a registry
/// that could not be read.
std::optional<std::size_t> currentRobotPlace(const ApplicationState& state);

/// Hands the serial parameters and the current robot's address to the session. It has to follow
/// every change of one of them, or the next operation goes to the machine before.
void passSessionParameters(const ApplicationState& state, Snappy& session);

} // namespace vantrel
