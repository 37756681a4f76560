#pragma once

#include <string>
#include <string_view>

namespace vantrel {

/// A text from a file or a controller as boxes and labels show it: one of more than 200 characters
/// is cut there and ends in an ellipsis. A list file may hold lines of any length, and a box with
/// such a line would be larger than the screen.
std::string shownText(std::string_view text);

} // namespace vantrel
