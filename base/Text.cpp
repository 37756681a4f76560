#include "base/Text.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace vantrel {

namespace {

constexpr char32_t replacementCharacter = 0xFFFD;

char upper(char character) {
    return character >= 'a' && character <= 'z' ? static_cast<char>(character - 'a' + 'A')
                                                : character;
}

char lower(char character) {
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a')
                                                : character;
}

struct Decoded {
    char32_t codePoint = replacementCharacter;
    std::size_t length = 1;
    bool isValid = false;
};

/// The sequence length that a lead byte announces; 0 when it can start none.
std::size_t announcedLength(unsigned char lead) {
    if (lead < 0x80)
        return 1;
    if (lead >= 0xC2 && lead <= 0xDF)
        return 2;
    if (lead >= 0xE0 && lead <= 0xEF)
        return 3;
    return lead >= 0xF0 && lead <= 0xF4 ? 4 : 0;
}

/// How many characters at the start are ASCII; eight at a time, since most texts are nothing else.
std::size_t asciiLength(std::string_view text) {
    constexpr std::uint64_t highBits = 0x8080808080808080u;
    std::size_t length = 0;
    for (std::uint64_t word = 0; text.size() - length >= sizeof word; length += sizeof word) {
        std::memcpy(&word, text.data() + length, sizeof word);
        if ((word & highBits) != 0)
            break;
    }
    while (length < text.size() && static_cast<unsigned char>(text[length]) < 0x80)
        ++length;
    return length;
}

bool isScalar(char32_t codePoint) {
    return codePoint <= 0x10FFFF && (codePoint < 0xD800 || codePoint > 0xDFFF);
}

/// Overlong forms, surrogates and values past U+10FFFF are as invalid as stray bytes.
Decoded decodeFirst(std::string_view bytes) {
    const auto lead = static_cast<unsigned char>(bytes.front());
    const std::size_t length = announcedLength(lead);
    if (length == 1)
        return {lead, 1, true};
    if (length == 0 || length > bytes.size())
        return {};
    char32_t codePoint = lead & (0x7Fu >> length);
    for (std::size_t i = 1; i < length; ++i) {
        const auto next = static_cast<unsigned char>(bytes[i]);
        if ((next & 0xC0u) != 0x80u)
            return {};
        codePoint = (codePoint << 6) | (next & 0x3Fu);
    }
    const bool overlong =
        (length == 3 && codePoint < 0x800) || (length == 4 && codePoint < 0x10000);
    return overlong || !isScalar(codePoint) ? Decoded{} : Decoded{codePoint, length, true};
}

void append(std::string& text, char32_t codePoint) {
    const auto tail = [&](unsigned shift) {
        text += static_cast<char>(0x80u | ((codePoint >> shift) & 0x3Fu));
    };
    if (codePoint < 0x80) {
        text += static_cast<char>(codePoint);
    } else if (codePoint < 0x800) {
        text += static_cast<char>(0xC0u | (codePoint >> 6));
        tail(0);
    } else if (codePoint < 0x10000) {
        text += static_cast<char>(0xE0u | (codePoint >> 12));
        tail(6);
        tail(0);
    } else {
        text += static_cast<char>(0xF0u | (codePoint >> 18));
        tail(12);
        tail(6);
        tail(0);
    }
}

} // namespace

std::string_view trimmed(std::string_view text, std::string_view outer) {
    const auto first = text.find_first_not_of(outer);
    if (first == std::string_view::npos)
        return text.substr(0, 0);
    return text.substr(first, text.find_last_not_of(outer) - first + 1);
}

std::string asciiUpper(std::string_view text) {
    std::string result(text);
    std::ranges::transform(result, result.begin(), upper);
    return result;
}

std::string asciiLower(std::string_view text) {
    std::string result(text);
    std::ranges::transform(result, result.begin(), lower);
    return result;
}

bool equalsIgnoringAsciiCase(std::string_view left, std::string_view right) {
    return std::ranges::equal(left, right, {}, upper, upper);
}

std::vector<std::string_view> split(std::string_view text, char separator) {
    std::vector<std::string_view> pieces;
    std::size_t start = 0;
    for (auto end = text.find(separator); end != std::string_view::npos;
         end = text.find(separator, start)) {
        pieces.push_back(text.substr(start, end - start));
        start = end + 1;
    }
    pieces.push_back(text.substr(start));
    return pieces;
}

std::string_view takeLine(std::string_view& rest) {
    std::size_t end = 0;
    while (end < rest.size() && rest[end] != '\r' && rest[end] != '\n')
        ++end;
    const auto line = rest.substr(0, end);
    rest.remove_prefix(end);
    rest.remove_prefix(rest.starts_with("\r\n") ? 2 : std::min<std::size_t>(1, rest.size()));
    return line;
}

std::vector<std::string_view> lines(std::string_view text) {
    std::vector<std::string_view> result;
    while (!text.empty())
        result.push_back(takeLine(text));
    return result;
}

bool isAscii(std::string_view text) {
    return asciiLength(text) == text.size();
}

bool isValidUtf8(std::string_view bytes) {
    while (true) {
        bytes.remove_prefix(asciiLength(bytes));
        if (bytes.empty())
            return true;
        const Decoded decoded = decodeFirst(bytes);
        if (!decoded.isValid)
            return false;
        bytes.remove_prefix(decoded.length);
    }
}

std::string_view firstCharacters(std::string_view utf8, std::size_t count) {
    std::size_t end = 0;
    for (; count > 0 && end < utf8.size(); --count)
        do
            ++end;
        while (end < utf8.size() && continuesCharacter(utf8[end]));
    return utf8.substr(0, end);
}

bool isUnshowable(char32_t codePoint) {
    return codePoint < 0x20 || (codePoint >= 0x7F && codePoint < 0xA0) || codePoint == 0x200E ||
           codePoint == 0x200F || (codePoint >= 0x2028 && codePoint <= 0x202E) ||
           (codePoint >= 0x2066 && codePoint <= 0x2069);
}

std::string onOneLine(std::string_view utf8) {
    std::u32string characters = codePoints(utf8);
    std::ranges::replace_if(characters, isUnshowable, replacementCharacter);
    return vantrel::utf8(characters);
}

char32_t takeCharacter(std::string_view& rest) {
    const Decoded decoded = decodeFirst(rest);
    rest.remove_prefix(decoded.length);
    return decoded.codePoint;
}

std::u32string codePoints(std::string_view utf8) {
    std::u32string result;
    result.reserve(utf8.size());
    while (!utf8.empty())
        result += takeCharacter(utf8);
    return result;
}

std::string utf8(std::u32string_view codePoints) {
    std::string result;
    result.reserve(codePoints.size());
    for (const char32_t codePoint : codePoints)
        append(result, isScalar(codePoint) ? codePoint : replacementCharacter);
    return result;
}

} // namespace vantrel
