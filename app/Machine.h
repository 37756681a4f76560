#pragma once

#include "base/TransferMode.h"

#include <cstdint>
#include <string>

namespace vantrel {

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

} // namespace vantrel
