#pragma once

#include <string_view>

namespace vantrel {

/// The characters that part the tokens of a registry line.
inline constexpr std::string_view registryDelimiters = "\t\n\r,=";

/// Takes the next token off a line, together with the delimiters before it; empty when there is
/// none left.
std::string_view takeRegistryToken(std::string_view& rest);

} // namespace vantrel
