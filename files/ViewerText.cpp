#include "files/ViewerText.h"

#include "base/Text.h"
#include "platform/Files.h"
#include "platform/TextEncoding.h"

#include <algorithm>
#include <utility>

namespace vantrel {
namespace {

constexpr std::string_view replacement = "\xEF\xBF\xBD";
constexpr std::string_view lineEnd = "\r\n";

/// Whether an unshowable character may begin with this byte of UTF-8.
bool isSuspect(char byte) {
    const auto value = static_cast<unsigned char>(byte);
    return (value < 0x20 && value != '\t') || value == 0x7F || value == 0xC2 || value == 0xE2;
}

/// The first character, which is a suspect one, and its length in bytes.
std::pair<char32_t, std::size_t> firstSuspect(std::string_view text) {
    const auto at = [text](std::size_t index) {
        return index < text.size() ? static_cast<unsigned char>(text[index]) : char32_t{0};
    };
    const auto tail = [&at](std::size_t index) { return at(index) & 0x3Fu; };
    if (at(0) == 0xC2)
        return {0x80u | tail(1), std::min<std::size_t>(2, text.size())};
    if (at(0) == 0xE2)
        return {0x2000u | (tail(1) << 6u) | tail(2), std::min<std::size_t>(3, text.size())};
    return {at(0), 1};
}

void appendShowable(std::string& kept, std::string_view line) {
    while (!line.empty()) {
        const auto suspect = std::ranges::find_if(line, isSuspect);
        kept.append(line.begin(), suspect);
        line.remove_prefix(std::size_t(suspect - line.begin()));
        if (line.empty())
            return;
        const auto [codePoint, length] = firstSuspect(line);
        kept.append(isUnshowable(codePoint) ? replacement : line.substr(0, length));
        line.remove_prefix(length);
    }
}

} // namespace

std::string viewerText(std::string_view text, bool Headder) {
    std::string kept;
    kept.reserve(text.size() + text.size() / 16);
    while (!text.empty()) {
        const auto line = takeLine(text);
        if (line.starts_with('/') && !Headder)
            continue;
        appendShowable(kept, line);
        kept.append(lineEnd);
    }
    return kept;
}

std::string numberedText(std::string_view text) {
    const auto lines = static_cast<std::size_t>(std::ranges::count(text, '\n'));
    const std::size_t width = std::to_string(lines).size();
    std::string numbered;
    numbered.reserve(text.size() + lines * (width + 2));
    for (std::size_t line = 1; !text.empty(); ++line) {
        const std::string number = std::to_string(line);
        numbered.append(width - std::min(width, number.size()), ' ').append(number).append("  ");
        const std::size_t end = std::min(text.find('\n'), text.size() - 1) + 1;
        numbered.append(text.substr(0, end));
        text.remove_prefix(end);
    }
    return numbered;
}

Result<std::string> readViewerText(const std::string& path, bool Headder) {
    const auto bytes = readFile(path);
    if (!bytes)
        return Failure{bytes.reason()};
    return viewerText(decodeText(*bytes).text, Headder);
}

} // namespace vantrel
