#include "platform/TextEncoding.h"

#include "base/Text.h"
#include "platform/CodePage.h"

#include <algorithm>

namespace vantrel {

namespace {

constexpr std::string_view utf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view littleEndianMark = "\xFF\xFE";
constexpr std::string_view bigEndianMark = "\xFE\xFF";
constexpr char32_t replacementCharacter = 0xFFFD;

enum class ByteOrder { Little, Big };

std::u16string unitsOf(std::string_view bytes, ByteOrder order) {
    std::u16string units;
    units.reserve(bytes.size() / 2 + 1);
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
        const auto first = static_cast<unsigned char>(bytes[i]);
        const auto second = static_cast<unsigned char>(bytes[i + 1]);
        const unsigned unit =
            order == ByteOrder::Little ? first | (second << 8u) : (first << 8u) | second;
        units += static_cast<char16_t>(unit);
    }
    if (bytes.size() % 2 != 0)
        units += static_cast<char16_t>(replacementCharacter);
    return units;
}

bool isHighSurrogate(char16_t unit) {
    return unit >= 0xD800 && unit <= 0xDBFF;
}
bool isLowSurrogate(char16_t unit) {
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

/// Half a pair of surrogates becomes U+FFFD on its way to UTF-8.
std::string fromUnits(std::u16string_view units) {
    std::u32string characters;
    characters.reserve(units.size());
    for (std::size_t i = 0; i < units.size(); ++i) {
        char32_t character = units[i];
        if (isHighSurrogate(units[i]) && i + 1 < units.size() && isLowSurrogate(units[i + 1])) {
            character = 0x10000u + ((units[i] & 0x3FFu) << 10u) + (units[i + 1] & 0x3FFu);
            ++i;
        }
        characters += character;
    }
    return utf8(characters);
}

void appendUnit(std::string& bytes, unsigned unit) {
    bytes += static_cast<char>(unit & 0xFFu);
    bytes += static_cast<char>(unit >> 8u);
}

std::string littleEndianBytes(std::string_view text) {
    std::string bytes;
    bytes.reserve(text.size() * 2);
    for (const char32_t character : codePoints(text)) {
        if (character < 0x10000) {
            appendUnit(bytes, character);
        } else {
            appendUnit(bytes, 0xD800u + ((character - 0x10000u) >> 10u));
            appendUnit(bytes, 0xDC00u + (character & 0x3FFu));
        }
    }
    return bytes;
}

} // namespace

DecodedText decodeText(std::string_view bytes) {
    if (bytes.starts_with(utf8Mark))
        return {utf8(codePoints(bytes.substr(utf8Mark.size()))), TextEncoding::Utf8WithMark};
    if (bytes.starts_with(littleEndianMark))
        return {fromUnits(unitsOf(bytes.substr(littleEndianMark.size()), ByteOrder::Little)),
                TextEncoding::Utf16LittleEndian};
    // Nothing of ours writes this order; such a file is saved in the other one.
    if (bytes.starts_with(bigEndianMark))
        return {fromUnits(unitsOf(bytes.substr(bigEndianMark.size()), ByteOrder::Big)),
                TextEncoding::Utf16LittleEndian};
    if (isValidUtf8(bytes))
        return {std::string(bytes), TextEncoding::Utf8};
    return {fromCodePage(bytes), TextEncoding::CodePage};
}

std::optional<std::string> encodeText(std::string_view text, TextEncoding encoding) {
    if (!isValidUtf8(text))
        return std::nullopt;
    switch (encoding) {
    case TextEncoding::Utf8:
        return std::string(text);
    case TextEncoding::Utf8WithMark:
        return std::string(utf8Mark).append(text);
    case TextEncoding::Utf16LittleEndian:
        return std::string(littleEndianMark).append(littleEndianBytes(text));
    case TextEncoding::CodePage:
        return codePageBytes(text);
    }
    return std::nullopt;
}

std::optional<std::string> encodeReadably(std::string_view text, TextEncoding encoding) {
    auto bytes = encodeText(text, encoding);
    const bool misread =
        bytes && encoding == TextEncoding::CodePage && decodeText(*bytes).text != text;
    return misread ? encodeText(text, TextEncoding::Utf8) : bytes;
}

// A character's codings have the same length; beside bytes that mean nothing there may be more
// marks than needed, and one is enough.
std::string nameFromCodePage(std::string_view bytes) {
    const std::string text = fromCodePage(bytes);
    if (codePageBytes(text) == bytes)
        return text;
    std::string name;
    for (const char32_t character : codePoints(text)) {
        const std::string single = utf8(std::u32string(1, character));
        const auto coded = codePageBytes(single);
        const bool isGivenBack = coded && bytes.starts_with(*coded);
        name += isGivenBack ? single : utf8(std::u32string(1, replacementCharacter));
        bytes.remove_prefix(std::min(coded ? coded->size() : 1, bytes.size()));
    }
    return name;
}

std::optional<std::string> toCodePage(std::string_view text) {
    if (text.find('\0') != std::string_view::npos)
        return std::nullopt;
    return codePageBytes(text);
}

} // namespace vantrel
