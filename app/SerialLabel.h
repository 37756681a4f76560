#pragma once

#include <string>

namespace vantrel {

struct SerialLine;

/// The serial parameters as `lbl232CParam` shows them, in the two lines that it has room for.
struct SerialLabel {
    std::string port;   ///< "COM1: 9600bps"
    std::string format; ///< "DataLength:8  Parity:EVEN  StopBit:1"

    /// Both in one line.
    std::string text() const { return port + "  " + format; }
};

SerialLabel serialLabel(const SerialLine& line);

} // namespace vantrel
