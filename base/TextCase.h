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

} // namespace vantrel
