#include "app/SerialLabel.h"

#include "app/SerialChoices.h"
#include "base/ApplicationState.h"

namespace vantrel {

SerialLabel serialLabel(const ApplicationState& state) {
    return {.port =
                "COM" + std::to_string(state.Port) + ": " + std::to_string(state.Baudrate) + "bps",
            .format = "DataLength:" + std::to_string(state.DataLen) +
                      "  Parity:" + serialName(SerialList::Parity, state.Parity) +
                      "  StopBit:" + serialName(SerialList::StopBit, state.StopBit)};
}

} // namespace vantrel
