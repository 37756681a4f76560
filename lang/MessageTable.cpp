#include "lang/MessageTable.h"

#include <utility>

namespace vantrel {

namespace {

constexpr std::int32_t resourceOffset = 500;
constexpr std::int32_t firstControllerCode = 1000;
constexpr std::int32_t lastControllerCode = 5200;
constexpr std::int32_t lastMessageNumber = INT16_MAX;

bool isControllerCode(std::int32_t code) {
    return code >= firstControllerCode && code <= lastControllerCode;
}

} // namespace

void MessageTable::replace(std::vector<MessageEntry> entries) {
    entries_.clear();
    entries_.reserve(entries.size());
    for (auto& entry : entries)
        entries_.try_emplace(entry.MsgNo, std::move(entry));
}

std::string MessageTable::getMessage(std::int32_t number, int kind) const {
    const auto found = entries_.find(number);
    if (found == entries_.end())
        return {};
    if (kind == 2)
        return found->second.Text2;
    return kind == 1 ? found->second.Text1 : std::string{};
}

std::string MessageTable::getMessageWithInsertion(std::int32_t number, std::string_view argument,
                                                  std::string_view next) const {
    auto text = getMessage(number);
    const auto place = text.find('%');
    if (place == std::string::npos)
        return text;
    // From behind: an argument may hold the sign itself.
    if (const auto second = text.find('%', place + 1); second != std::string::npos && !next.empty())
        text.replace(second, 1, next);
    return text.replace(place, 1, argument);
}

std::string MessageTable::resourceMessage(std::int32_t number) const {
    // Every message number fits 16 bits, so sums that would not fit 32 have no message either.
    if (number > lastMessageNumber)
        return {};
    return getMessage(number + resourceOffset);
}

std::string MessageTable::controllerErrorText(std::int32_t code) const {
    return isControllerCode(code) ? getMessage(code) : std::string{};
}

std::string MessageTable::returnedCodeText(std::int32_t code) const {
    auto text = controllerErrorText(code);
    return text.empty() ? std::to_string(code) : text;
}

std::string MessageTable::errorText(std::int32_t code) const {
    auto text = isControllerCode(code) ? getMessage(code) : resourceMessage(code);
    return text.empty() ? std::to_string(code) : text;
}

} // namespace vantrel
