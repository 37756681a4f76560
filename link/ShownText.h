#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace vantrel {

class MessageTable;

/// A text from a file or a controller as boxes and labels show it, on one line: characters that
/// cannot be shown become U+FFFD, and one of more than 200 characters is cut there and ends in an
/// ellipsis. A list file may hold lines of any length, and a controller names of any number of
/// lines; a box with those would be larger than the screen.
std::string shownText(std::string_view text);

/// The same in square brackets, as names stand in messages.
std::string bracketed(std::string_view text);

/// "Item 2 of 5", in the language in force; `item` counts from 0.
std::string itemText(const MessageTable& messages, std::int32_t item, std::int32_t count);

/// "Item 2 of 5  Waiting for the controller".
std::string waitingText(const MessageTable& messages, std::int32_t item, std::int32_t count);

} // namespace vantrel
