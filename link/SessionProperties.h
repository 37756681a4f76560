#pragma once

#include <cstdint>
#include <string>

namespace vantrel {

/// The public fields of the session, plain values that callers read and write.
struct SessionProperties {
    std::int16_t port = 1;               ///< 1 = COM1
    std::int32_t Baudrate = 9600;        ///< bit/s
    std::int16_t parity = 2;             ///< code, passed through unchanged
    std::int16_t DataLen = 8;            ///< bits
    std::int16_t StopBit = 0;            ///< code, passed through unchanged
    std::string path;                    ///< the PC folder that the library works in
    bool DisplayMonitor = true;          ///< off: no progress, every question answers Cancel
    std::string MonitorTitle = "Snappy"; ///< caption of progress and questions
    std::string IPaddress;               ///< dotted form
};

} // namespace vantrel
