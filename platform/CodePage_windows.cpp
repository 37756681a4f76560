#include "base/Text.h"
#include "platform/CodePage.h"
#include "platform/System_windows.h"
#include "platform/TextEncoding.h"

#include <algorithm>

namespace vantrel {

namespace {

constexpr std::wstring_view replacement = L"\uFFFD";

/// A machine may be set to use UTF-8 as its ANSI code page; the system then takes none of the flags
/// with which other code pages are kept strict.
bool isUtf8CodePage() {
    return ::GetACP() == CP_UTF8;
}

/// Appends the text of bytes that are all valid; false when they are not.
bool appendStrictly(std::string_view bytes, std::wstring& text) {
    const auto start = text.size();
    text.resize(start + bytes.size()); // never more units than bytes
    const int size = static_cast<int>(bytes.size());
    const int count = ::MultiByteToWideChar(CP_ACP, MB_ERR_INVALID_CHARS, bytes.data(), size,
                                            text.data() + start, size);
    text.resize(start + static_cast<std::size_t>(count));
    return count > 0;
}

std::size_t characterSize(std::string_view bytes) {
    const bool isDouble = ::IsDBCSLeadByte(static_cast<BYTE>(bytes.front())) != 0;
    return isDouble && bytes.size() > 1 ? 2 : 1;
}

/// Whole characters, about `atMost` bytes of them.
std::size_t pieceSize(std::string_view bytes, std::size_t atMost) {
    std::size_t size = 0;
    while (size < bytes.size() && size < atMost)
        size += characterSize(bytes.substr(size));
    return size;
}

void appendEachCharacter(std::string_view bytes, std::wstring& text) {
    while (!bytes.empty()) {
        std::size_t size = characterSize(bytes);
        if (!appendStrictly(bytes.substr(0, size), text)) {
            text += replacement;
            size = 1;
        }
        bytes.remove_prefix(size);
    }
}

} // namespace

std::optional<std::string> codePageBytes(std::string_view utf8) {
    if (isAscii(utf8) || (isUtf8CodePage() && isValidUtf8(utf8)))
        return std::string(utf8);
    const std::wstring text = wide(utf8);
    std::string bytes(text.size() * 2, '\0');
    BOOL isReplaced = FALSE;
    const int count = ::WideCharToMultiByte(CP_ACP, WC_NO_BEST_FIT_CHARS, text.data(),
                                            static_cast<int>(text.size()), bytes.data(),
                                            static_cast<int>(bytes.size()), nullptr, &isReplaced);
    bytes.resize(static_cast<std::size_t>(count));
    // Some code pages hold a character twice or let one through that reads back as another.
    if (count == 0 || isReplaced || fromCodePage(bytes) != utf8)
        return std::nullopt;
    return bytes;
}

std::string fromCodePage(std::string_view bytes) {
    if (isAscii(bytes))
        return std::string(bytes);
    if (isUtf8CodePage())
        return utf8(codePoints(bytes));
    constexpr std::size_t pieceBytes = 4096;
    std::wstring text;
    text.reserve(bytes.size());
    while (!bytes.empty()) {
        const auto piece = bytes.substr(0, pieceSize(bytes, pieceBytes));
        if (!appendStrictly(piece, text))
            appendEachCharacter(piece, text);
        bytes.remove_prefix(piece.size());
    }
    return narrow(text);
}

} // namespace vantrel
