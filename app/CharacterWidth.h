#pragma once

namespace vantrel {

/// How many columns a character takes in a fixed-pitch font: 2 for the wide characters of East
/// Asian scripts, 0 for marks that stand on the character before them, else 1.
int characterWidth(char32_t character);

} // namespace vantrel
