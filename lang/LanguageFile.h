#pragma once

#include "lang/MessageTable.h"

#include <string_view>
#include <vector>

namespace vantrel {

/// The entries of a language file in file order, repeated numbers included. Everything up to the
/// line "Start:" is a free header and a line that begins with ";" a comment. An entry is a number,
/// then two texts in double quotes. Lines that are no entries are passed over, and so are numbers
/// that 16 bits cannot hold.
std::vector<MessageEntry> parseLanguageFile(std::string_view bytes);

} // namespace vantrel
