#pragma once

#include "base/Result.h"

#include <optional>
#include <string>
#include <string_view>

namespace vantrel {

/// The encodings in which text files are found and saved.
enum class TextEncoding {
    Utf8,
    Utf8WithMark,
    Utf16LittleEndian, ///< always with a byte-order mark
    CodePage,          ///< the ANSI code page: the system's on Windows, 932 elsewhere
};

struct DecodedText {
    std::string text; ///< UTF-8
    TextEncoding encoding = TextEncoding::Utf8;
};

/// A file's bytes as text: by byte-order mark, else strict UTF-8, else the ANSI code page. Bytes
/// that mean nothing there become U+FFFD; NUL bytes stay.
DecodedText decodeText(std::string_view bytes);

/// Text as the bytes of a file, or nothing when the encoding lacks one of its characters.
std::optional<std::string> encodeText(std::string_view text, TextEncoding encoding);

/// The same for a file that `decodeText` is to read back: code page bytes that it would take for
/// another encoding are written as UTF-8.
std::optional<std::string> encodeReadably(std::string_view text, TextEncoding encoding);

/// What the communication library takes: text in the ANSI code page, or nothing when the code page
/// lacks a character or the text holds a NUL.
std::optional<std::string> toCodePage(std::string_view text);
/// What the communication library gives; bytes that mean nothing become U+FFFD.
std::string fromCodePage(std::string_view bytes);
/// The same for a name by which the library will be asked again: bytes that `toCodePage` would not
/// give back become U+FFFD too. Code page 932 has some characters twice, and what has one of them
/// in the other coding would be taken for something else.
std::string nameFromCodePage(std::string_view bytes);

} // namespace vantrel
