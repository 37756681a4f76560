#pragma once

#include <cstdint>

namespace vantrel {

/// How a controller is reached; also the link type handed to `BscOpen`.
/// A settings file may hold any 16-bit number, so other values than the two named ones occur until
/// the start routine has turned them into `Bsc`.
enum class TransferMode : std::int16_t {
    Bsc = 1,          ///< serial line
    HispeedLink = 16, ///< Ethernet
};

} // namespace vantrel
