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

/// How a controller is reached over a serial line.
struct SerialLine {
    std::int16_t Port = 1;
    std::int32_t Baudrate = 9600; ///< bit/s
    std::int16_t Parity = 2;      ///< 0 none, 1 odd, 2 even
    std::int16_t DataLen = 8;
    std::int16_t StopBit = 0; ///< 0 = 1, 1 = 1.5, 2 = 2 stop bits

    bool operator==(const SerialLine&) const = default;
};

} // namespace vantrel
