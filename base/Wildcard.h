#pragma once

#include <string_view>

namespace vantrel {

/// Whether the whole text matches the pattern, letter case included: "*" any run of characters, "?"
/// one character, "#" one digit, "[a-z]" one of a list with ranges, "[!a-z]" one that is not in it.
/// An unclosed "[" is a plain character. Both are UTF-8 and compared by character. Time is bounded
/// by the product of the two lengths, whatever the pattern.
bool matchesWildcard(std::string_view text, std::string_view pattern);

} // namespace vantrel
