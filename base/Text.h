#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace vantrel {

/// Without leading and trailing characters of `outer`.
std::string_view trimmed(std::string_view text, std::string_view outer = " \t\r\n");

/// ASCII letters only, whatever the locale; other bytes stay.
std::string asciiUpper(std::string_view text);
std::string asciiLower(std::string_view text);
bool equalsIgnoringAsciiCase(std::string_view left, std::string_view right);

/// All pieces between the separators; an empty text gives one empty piece.
std::vector<std::string_view> split(std::string_view text, char separator);

/// Takes the next line off a text that is not empty: returns it without its line end. For texts
/// that may have millions of lines; otherwise `lines` is handier.
std::string_view takeLine(std::string_view& rest);

/// The lines of a text whose lines end in CR LF, LF or CR. A line end at the end of the text starts
/// no further line. The views point into `text`.
std::vector<std::string_view> lines(std::string_view text);

bool isAscii(std::string_view text);
/// Whether the bytes are strict UTF-8: no overlong forms, no surrogates, nothing past U+10FFFF.
bool isValidUtf8(std::string_view bytes);

/// Whether a byte of UTF-8 goes on with a character that began before it.
constexpr bool continuesCharacter(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0u) == 0x80u;
}

/// The first `count` characters of UTF-8, never half of one; all when there are no more.
std::string_view firstCharacters(std::string_view utf8, std::size_t count);

/// Whether a character would not be seen where it stands: control characters, line separators, and
/// the marks that turn the direction of the text after them, with which a text could be read
/// otherwise than it is written.
bool isUnshowable(char32_t codePoint);
/// A name as one line of text, whatever somebody calls his files: characters that cannot be shown
/// become U+FFFD.
std::string onOneLine(std::string_view utf8);

/// Takes the next character off a text that is not empty; an invalid byte is U+FFFD.
char32_t takeCharacter(std::string_view& rest);
/// The characters of strict UTF-8 as code points; an invalid byte becomes U+FFFD.
std::u32string codePoints(std::string_view utf8);
/// The characters as UTF-8; a code point that is none becomes U+FFFD.
std::string utf8(std::u32string_view codePoints);

} // namespace vantrel
