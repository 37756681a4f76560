#include "link/ShownText.h"

#include "base/Text.h"
#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"

namespace vantrel {
namespace {

constexpr std::size_t mostCharacters = 200;
constexpr const char* ellipsis = "\u2026";

} // namespace

std::string shownText(std::string_view text) {
    const std::string_view start = firstCharacters(text, mostCharacters);
    return onOneLine(start) + (start.size() < text.size() ? ellipsis : "");
}

std::string bracketed(std::string_view text) {
    return "[" + shownText(text) + "]";
}

std::string itemText(const MessageTable& messages, std::int32_t item, std::int32_t count) {
    return messages.getMessage(message::progressItem) + std::to_string(item + 1) +
           messages.getMessage(message::progressOf) + std::to_string(count);
}

std::string waitingText(const MessageTable& messages, std::int32_t item, std::int32_t count) {
    return itemText(messages, item, count) + "  " +
           messages.getMessage(message::waitingForController);
}

} // namespace vantrel
