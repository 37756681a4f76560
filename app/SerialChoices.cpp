#include "app/SerialChoices.h"

#include <array>

namespace vantrel {
namespace {

constexpr std::array<std::string_view, 5> baudrates{"1200", "2400", "4800", "9600", "19200"};
constexpr std::array<std::string_view, 3> parities{"NONE", "ODD", "EVEN"};
constexpr std::array<std::string_view, 2> dataLengths{"7", "8"};
constexpr std::array<std::string_view, 3> stopBits{"1", "1.5", "2"};

} // namespace

std::span<const std::string_view> serialChoices(SerialList list) {
    switch (list) {
    case SerialList::Baudrate:
        return baudrates;
    case SerialList::Parity:
        return parities;
    case SerialList::DataLen:
        return dataLengths;
    case SerialList::StopBit:
        break;
    }
    return stopBits;
}

std::string serialName(SerialList list, std::int16_t code) {
    const auto choices = serialChoices(list);
    if (code < 0 || static_cast<std::size_t>(code) >= choices.size())
        return {};
    return std::string(choices[static_cast<std::size_t>(code)]);
}

} // namespace vantrel
