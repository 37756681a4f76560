#include "link/ShownText.h"

#include "base/Text.h"

namespace vantrel {
namespace {

constexpr std::size_t mostCharacters = 200;
constexpr const char* ellipsis = "\u2026";

} // namespace

std::string shownText(std::string_view text) {
    const std::string_view start = firstCharacters(text, mostCharacters);
    return onOneLine(start) + (start.size() < text.size() ? ellipsis : "");
}

std::string bracketed(std::string_view text) {
    return "[" + shownText(text) + "]";
}

} // namespace vantrel
