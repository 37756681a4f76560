#include "app/SerialLabel.h"

#include "app/SerialChoices.h"
#include "base/SerialLine.h"

namespace vantrel {

SerialLabel serialLabel(const SerialLine& line) {
    return {.port =
                "COM" + std::to_string(line.Port) + ": " + std::to_string(line.Baudrate) + "bps",
            .format = "DataLength:" + std::to_string(line.DataLen) +
                      "  Parity:" + serialName(SerialList::Parity, line.Parity) +
                      "  StopBit:" + serialName(SerialList::StopBit, line.StopBit)};
}

} // namespace vantrel
