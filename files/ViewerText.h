#pragma once

#include "base/Result.h"

#include <string>
#include <string_view>

namespace vantrel {

/// A file's lines as the viewer keeps them, each followed by CR LF: all of them with `Headder`,
/// else those that do not begin with "/". A line ends in CR LF, LF or CR. Characters that no screen
/// can show, or that would change how the text around them is shown, become U+FFFD; tabs stay.
/// Takes and gives UTF-8.
std::string viewerText(std::string_view text, bool Headder);

/// The same of a file in any of the encodings in which text files are found.
Result<std::string> readViewerText(const std::string& path, bool Headder);

/// The lines of such a text with their numbers before them, from 1, in a column of their own.
std::string numberedText(std::string_view text);

} // namespace vantrel
