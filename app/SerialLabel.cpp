#include "app/SerialLabel.h"

#include "base/ApplicationState.h"

#include <array>
#include <span>
#include <string_view>

namespace vantrel {
namespace {

constexpr std::array<std::string_view, 3> parityNames{"NONE", "ODD", "EVEN"};
constexpr std::array<std::string_view, 3> stopBitNames{"1", "1.5", "2"};

// A code that has no name shows none: any name would claim something that is not so.
std::string nameOf(std::int16_t code, std::span<const std::string_view> names) {
    if (code < 0 || static_cast<std::size_t>(code) >= names.size())
        return {};
    return std::string(names[static_cast<std::size_t>(code)]);
}

} // namespace

SerialLabel serialLabel(const ApplicationState& state) {
    return {.port =
                "COM" + std::to_string(state.Port) + ": " + std::to_string(state.Baudrate) + "bps",
            .format = "DataLength:" + std::to_string(state.DataLen) +
                      "  Parity:" + nameOf(state.Parity, parityNames) +
                      "  StopBit:" + nameOf(state.StopBit, stopBitNames)};
}

} // namespace vantrel
