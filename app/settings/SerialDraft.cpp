#include "app/settings/SerialDraft.h"

#include "base/Numbers.h"

#include <algorithm>

namespace vantrel {
namespace {

constexpr std::array<std::string_view, 5> baudrates{"1200", "2400", "4800", "9600", "19200"};
constexpr std::array<std::string_view, 3> parities{"NONE", "ODD", "EVEN"};
constexpr std::array<std::string_view, 2> dataLengths{"7", "8"};
constexpr std::array<std::string_view, 3> stopBits{"1", "1.5", "2"};

constexpr std::size_t defaultBaudrate = 3; // "9600"
constexpr std::size_t defaultParity = 2;   // "EVEN"
constexpr std::size_t defaultDataLen = 1;  // "8"
constexpr std::size_t defaultStopBit = 0;  // "1"
constexpr int shortestDataLen = 7;

std::size_t baudrateEntry(std::int32_t baudrate) {
    const auto choices = serialChoices(SerialList::Baudrate);
    const auto found = std::ranges::find(choices, std::to_string(baudrate));
    return found == choices.end() ? defaultBaudrate
                                  : static_cast<std::size_t>(found - choices.begin());
}

std::optional<std::size_t> entryAt(SerialList list, int index) {
    if (index < 0 || static_cast<std::size_t>(index) >= serialChoices(list).size())
        return std::nullopt;
    return static_cast<std::size_t>(index);
}

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

SerialLabel serialLabel(const SerialLine& line) {
    return {.port =
                "COM" + std::to_string(line.Port) + ": " + std::to_string(line.Baudrate) + "bps",
            .format = "DataLength:" + std::to_string(line.DataLen) +
                      "  Parity:" + serialName(SerialList::Parity, line.Parity) +
                      "  StopBit:" + serialName(SerialList::StopBit, line.StopBit)};
}

SerialDraft::SerialDraft(const SerialLine& stored) : stored_(stored), port_(stored.Port) {
    entry(SerialList::Baudrate) = baudrateEntry(stored.Baudrate);
    entry(SerialList::Parity) = entryAt(SerialList::Parity, stored.Parity);
    entry(SerialList::DataLen) = entryAt(SerialList::DataLen, stored.DataLen - shortestDataLen);
    entry(SerialList::StopBit) = entryAt(SerialList::StopBit, stored.StopBit);
}

std::optional<std::size_t>& SerialDraft::entry(SerialList list) {
    return chosen_[static_cast<std::size_t>(list)];
}

std::optional<std::size_t> SerialDraft::chosen(SerialList list) const {
    return chosen_[static_cast<std::size_t>(list)];
}

void SerialDraft::setPort(int port) {
    port = std::clamp(port, lowestPort, highestPort);
    edited_ = edited_ || port != port_;
    port_ = port;
}

void SerialDraft::choose(SerialList list, std::size_t index) {
    if (index >= serialChoices(list).size() || entry(list) == index)
        return;
    entry(list) = index;
    edited_ = true;
}

void SerialDraft::restoreDefaults() {
    setPort(lowestPort);
    choose(SerialList::Baudrate, defaultBaudrate);
    choose(SerialList::Parity, defaultParity);
    choose(SerialList::DataLen, defaultDataLen);
    choose(SerialList::StopBit, defaultStopBit);
    edited_ = true;
}

SerialLine SerialDraft::line() const {
    SerialLine line = stored_;
    line.Port = static_cast<std::int16_t>(port_);
    line.Baudrate = leadingInteger32(serialChoices(
        SerialList::Baudrate)[chosen(SerialList::Baudrate).value_or(defaultBaudrate)]);
    if (const auto parity = chosen(SerialList::Parity))
        line.Parity = static_cast<std::int16_t>(*parity);
    if (const auto length = chosen(SerialList::DataLen))
        line.DataLen = leadingInteger16(serialChoices(SerialList::DataLen)[*length]);
    if (const auto stopBit = chosen(SerialList::StopBit))
        line.StopBit = static_cast<std::int16_t>(*stopBit);
    return line;
}

} // namespace vantrel
