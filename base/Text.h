#pragma once

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

/// The characters of strict UTF-8 as code points; an invalid byte becomes U+FFFD.
std::u32string codePoints(std::string_view utf8);
/// The characters as UTF-8; a code point that is none becomes U+FFFD.
std::string utf8(std::u32string_view codePoints);

} // namespace vantrel
