#pragma once

#include <string>
#include <string_view>

namespace vantrel {

/// A text from a file or a controller as boxes and labels show it, on one line: characters that
/// cannot be shown become U+FFFD, and one of more than 200 characters is cut there and ends in an
/// ellipsis. A list file may hold lines of any length, and a controller names of any number of
/// lines; a box with those would be larger than the screen.
std::string shownText(std::string_view text);

/// The same in square brackets, as names stand in messages.
std::string bracketed(std::string_view text);

} // namespace vantrel
