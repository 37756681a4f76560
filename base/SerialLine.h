#pragma once

#include <cstdint>

namespace vantrel {

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
