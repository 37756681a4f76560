#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace vantrel {

/// The lists of serial parameters that the operator chooses from.
enum class SerialList { Baudrate, Parity, DataLen, StopBit };

/// The entries of a list, in order. Parity and stop bits are coded by their place in it, the other
/// two are the number that the entry shows.
std::span<const std::string_view> serialChoices(SerialList list);

/// The entry of a code, or an empty text: any other name would claim something that is not so.
std::string serialName(SerialList list, std::int16_t code);

} // namespace vantrel
