#include "platform/MountInfo_posix.h"

#include <cstddef>

namespace vantrel {

namespace {

constexpr std::size_t mountPointField = 4;

/// The character that "\ooo" at `start` stands for; nothing when there is no such escape.
std::optional<char> octalEscape(std::string_view text, std::size_t start) {
    if (text.size() - start < 4 || text[start] != '\\')
        return {};
    unsigned value = 0;
    for (const char digit : text.substr(start + 1, 3)) {
        if (digit < '0' || digit > '7')
            return {};
        value = value * 8 + static_cast<unsigned>(digit - '0');
    }
    // A path holds no NUL, so that is no escape either.
    return value > 0 && value < 256 ? std::optional(static_cast<char>(value)) : std::nullopt;
}

std::string unescaped(std::string_view text) {
    std::string result;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const auto character = octalEscape(text, at);
        result += character.value_or(text[at]);
        at += character ? 3 : 0;
    }
    return result;
}

} // namespace

std::optional<Mount> mountOfLine(std::string_view line) {
    constexpr std::string_view beforeFileSystem = " - ";
    for (std::size_t field = 0; field < mountPointField; ++field) {
        const auto end = line.find(' ');
        if (end == line.npos)
            return {};
        line.remove_prefix(end + 1);
    }
    const auto separator = line.find(beforeFileSystem);
    if (separator == line.npos)
        return {};
    const auto kind = line.substr(separator + beforeFileSystem.size());
    return Mount{unescaped(line.substr(0, line.find(' '))), kind.substr(0, kind.find(' '))};
}

} // namespace vantrel
