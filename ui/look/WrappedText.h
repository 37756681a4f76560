#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace vantrel {

/// Breaks a text into lines no wider than `width`, as `widthOf` measures them. Lines break at
/// blanks and after East Asian characters; a name longer than a line breaks where it must. Line
/// ends of the text stay.
std::string wrappedText(std::string_view text, int width,
                        const std::function<int(std::string_view)>& widthOf);

} // namespace vantrel
