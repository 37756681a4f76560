#pragma once

#include <string>
#include <string_view>

namespace vantrel {

/// Every character to upper case one to one by the Unicode simple mapping, whatever the locale.
std::string upperCase(std::string_view utf8);
std::string lowerCase(std::string_view utf8);

/// The form in which job names are compared: upper case, but the 24 lower-case Greek letters
/// "αβγδεζηθικλμνξοπρστυφχψω" stay.
std::string normalisedJobName(std::string_view name);

/// One character beyond ASCII by the Unicode simple mapping; without an upper or lower case form it
/// stays. A table of ours, since the systems' own mappings differ from each other and between
/// versions, and letter case decides which job on a controller a file stands for.
char32_t upperCaseOf(char32_t character);
char32_t lowerCaseOf(char32_t character);

} // namespace vantrel
