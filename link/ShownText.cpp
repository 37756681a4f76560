#include "link/ShownText.h"

#include <algorithm>
#include <cstddef>

namespace vantrel {
namespace {

constexpr std::size_t mostCharacters = 200;
constexpr const char* ellipsis = "\u2026";

} // namespace

std::string shownText(std::string_view text) {
    std::size_t characters = 0;
    const auto startsOneTooMany = [&characters](char byte) {
        const bool starts = (static_cast<unsigned char>(byte) & 0xC0) != 0x80;
        return starts && ++characters > mostCharacters;
    };
    const auto end = std::find_if(text.begin(), text.end(), startsOneTooMany);
    return std::string(text.begin(), end) + (end == text.end() ? "" : ellipsis);
}

} // namespace vantrel
