#include "app/SerialDraft.h"

#include "base/ApplicationState.h"
#include "base/Numbers.h"

#include <algorithm>

namespace vantrel {
namespace {

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

SerialDraft::SerialDraft(const ApplicationState& state)
    : port_(state.Port), storedParity_(state.Parity), storedDataLen_(state.DataLen),
      storedStopBit_(state.StopBit) {
    entry(SerialList::Baudrate) = baudrateEntry(state.Baudrate);
    entry(SerialList::Parity) = entryAt(SerialList::Parity, state.Parity);
    entry(SerialList::DataLen) = entryAt(SerialList::DataLen, state.DataLen - shortestDataLen);
    entry(SerialList::StopBit) = entryAt(SerialList::StopBit, state.StopBit);
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

std::int32_t SerialDraft::baudrate() const {
    const auto index = chosen(SerialList::Baudrate).value_or(defaultBaudrate);
    return leadingInteger32(serialChoices(SerialList::Baudrate)[index]);
}

std::int16_t SerialDraft::parity() const {
    const auto index = chosen(SerialList::Parity);
    return index ? static_cast<std::int16_t>(*index) : storedParity_;
}

std::int16_t SerialDraft::dataLen() const {
    const auto index = chosen(SerialList::DataLen);
    return index ? leadingInteger16(serialChoices(SerialList::DataLen)[*index]) : storedDataLen_;
}

std::int16_t SerialDraft::stopBit() const {
    const auto index = chosen(SerialList::StopBit);
    return index ? static_cast<std::int16_t>(*index) : storedStopBit_;
}

} // namespace vantrel
