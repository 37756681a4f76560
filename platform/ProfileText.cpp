#include "platform/ProfileText.h"

#include "base/Text.h"
#include "platform/CodePage.h"
#include "platform/TextCase.h"
#include "platform/TextEncoding.h"

#include <algorithm>

namespace vantrel {

namespace {

constexpr std::string_view blanks = " \t";
constexpr std::string_view wideMark = "\xFF\xFE";
constexpr std::string_view lineEnd = "\r\n";

bool sameName(std::string_view left, std::string_view right) {
    if (isAscii(left) && isAscii(right))
        return equalsIgnoringAsciiCase(left, right);
    // A name is at most four times as long in its other letter case; a longer line costs nothing.
    return left.size() <= right.size() * 4 && upperCase(left) == upperCase(right);
}

/// The name in a header line; nothing when the line is none. Without a "]" the header runs to the
/// end of its line.
std::optional<std::string_view> headerName(std::string_view line) {
    line = trimmed(line, blanks);
    if (!line.starts_with('['))
        return std::nullopt;
    line.remove_prefix(1);
    return trimmed(line.substr(0, line.find(']')), blanks);
}

struct Entry {
    std::string_view key, value;
};

std::optional<Entry> entryOf(std::string_view line) {
    const auto content = trimmed(line, blanks);
    const auto equals = content.find('=');
    if (content.starts_with(';') || equals == std::string_view::npos)
        return std::nullopt;
    return Entry{trimmed(content.substr(0, equals), blanks),
                 trimmed(content.substr(equals + 1), blanks)};
}

std::string_view withoutQuotes(std::string_view value) {
    const bool quoted = value.size() >= 2 && value.front() == value.back() &&
                        (value.front() == '"' || value.front() == '\'');
    return quoted ? value.substr(1, value.size() - 2) : value;
}

bool hasForbidden(std::string_view text, std::string_view forbidden) {
    return text.find_first_of(forbidden) != std::string_view::npos;
}

/// Why a text could not be read back once written, or nothing.
std::optional<Failure> unreadable(std::string_view section, std::string_view key,
                                  std::string_view value) {
    constexpr std::string_view breaks{"\r\n\0", 3};
    if (section.empty() || key.empty())
        return Failure{"a section or key has no name"};
    if (hasForbidden(section, breaks) || hasForbidden(key, breaks) || hasForbidden(value, breaks))
        return Failure{"a setting cannot hold a line end"};
    if (hasForbidden(section, "]") || hasForbidden(key, "=") || key.starts_with('[') ||
        key.starts_with(';'))
        return Failure{"the name of a section or key holds a reserved character"};
    return std::nullopt;
}

/// The lines of a file's bytes in one of its two encodings, by position. In both encodings the
/// units for CR, LF and "=" are part of no other character.
class RawLines {
  public:
    RawLines(const std::string& bytes, bool isWide)
        : bytes_(bytes), unit_(isWide ? 2 : 1), start_(isWide ? wideMark.size() : 0) {}

    /// Where the line of this number starts; the end of the file past the last line.
    std::size_t lineStart(std::size_t number) const {
        std::size_t at = start_;
        for (; number > 0 && at < end(); --number)
            at = afterLineEnd(contentEnd(at));
        return at;
    }
    /// Where the content of the line at `at` ends.
    std::size_t contentEnd(std::size_t at) const {
        while (at < end() && !isUnit(at, '\r') && !isUnit(at, '\n'))
            at += unit_;
        return std::min(at, end());
    }
    std::size_t afterLineEnd(std::size_t at) const {
        if (at >= end())
            return end();
        const bool both = isUnit(at, '\r') && isUnit(at + unit_, '\n');
        return at + (both ? 2 : 1) * unit_;
    }
    /// Behind the first "=" of the line at `at`.
    std::size_t afterEquals(std::size_t at) const {
        while (at < end() && !isUnit(at, '='))
            at += unit_;
        return std::min(at + unit_, end());
    }
    bool isLastLineOpen() const {
        return end() > start_ && !isUnit(end() - unit_, '\r') && !isUnit(end() - unit_, '\n');
    }

  private:
    /// An odd byte at the end of a wide file belongs to no unit, but to the last line's content.
    std::size_t end() const { return bytes_.size(); }
    bool isUnit(std::size_t at, char character) const {
        if (at + unit_ > bytes_.size() || bytes_[at] != character)
            return false;
        return unit_ == 1 || bytes_[at + 1] == '\0';
    }

    const std::string& bytes_;
    std::size_t unit_;
    std::size_t start_;
};

} // namespace

/// Where a section and a key are, as line numbers.
struct ProfileText::Place {
    bool hasSection = false;
    std::optional<std::string_view> value; ///< as written, without outer blanks
    std::size_t keyLine = 0;
    std::size_t lastLine = 0; ///< of the section's keys, or its header
};

ProfileText::ProfileText(std::string bytes) : bytes_(std::move(bytes)) {
    decode();
}

void ProfileText::decode() {
    text_ = isWide() ? decodeText(bytes_).text : fromCodePage(bytes_);
}

bool ProfileText::isWide() const {
    return bytes_.starts_with(wideMark);
}

/// Of equal sections and of equal keys the first counts.
ProfileText::Place ProfileText::find(std::string_view section, std::string_view key) const {
    Place place;
    std::string_view rest = text_;
    for (std::size_t number = 0; !rest.empty(); ++number) {
        const auto line = takeLine(rest);
        if (const auto header = headerName(line)) {
            if (place.hasSection)
                break;
            place.hasSection = sameName(*header, section);
            place.lastLine = number;
            continue;
        }
        const auto entry = place.hasSection ? entryOf(line) : std::nullopt;
        if (!entry)
            continue;
        place.lastLine = number;
        if (sameName(entry->key, key)) {
            place.keyLine = number;
            place.value = entry->value;
            break;
        }
    }
    return place;
}

std::optional<std::string> ProfileText::value(std::string_view section,
                                              std::string_view key) const {
    const auto place = find(trimmed(section, " "), trimmed(key, " "));
    if (!place.value)
        return std::nullopt;
    return std::string(withoutQuotes(*place.value));
}

std::optional<std::string> ProfileText::encoded(std::string_view text) const {
    if (!isWide())
        return codePageBytes(text);
    auto bytes = encodeText(text, TextEncoding::Utf16LittleEndian);
    if (bytes)
        bytes->erase(0, wideMark.size());
    return bytes;
}

Outcome ProfileText::set(std::string_view section, std::string_view key, std::string_view value) {
    section = trimmed(section, " ");
    key = trimmed(key, " ");
    if (auto failure = unreadable(section, key, value))
        return *failure;
    const auto place = find(section, key);
    const std::string entry = std::string(key) + "=" + std::string(value) + std::string(lineEnd);
    const std::string header = "[" + std::string(section) + "]" + std::string(lineEnd);
    const auto added = encoded(place.value ? value : place.hasSection ? entry : header + entry);
    if (!added)
        return Failure{"the code page lacks a character of \"" + std::string(value) + "\""};
    if (isWide() && bytes_.size() % 2 != 0)
        bytes_.pop_back(); // half a character at the end would put all that follows out of step
    if (place.value)
        changeValue(place.keyLine, *added);
    else
        insertAfter(place.hasSection ? place.lastLine : std::string::npos, *added);
    decode();
    return Done{};
}

/// All that follows the "=" is the value, so all of it is replaced.
void ProfileText::changeValue(std::size_t line, const std::string& value) {
    const RawLines raw(bytes_, isWide());
    const auto start = raw.lineStart(line);
    const auto valueStart = raw.afterEquals(start);
    bytes_.replace(valueStart, raw.contentEnd(start) - valueStart, value);
}

/// Behind the line of this number, npos for the last one, which is closed first if need be.
void ProfileText::insertAfter(std::size_t line, const std::string& added) {
    const RawLines raw(bytes_, isWide());
    const bool atEnd = line == std::string::npos;
    const auto start = atEnd ? bytes_.size() : raw.lineStart(line);
    const auto contentEnd = atEnd ? bytes_.size() : raw.contentEnd(start);
    const bool isOpen = atEnd ? raw.isLastLineOpen() : contentEnd == bytes_.size();
    const auto at = raw.afterLineEnd(contentEnd);
    bytes_.insert(at, isOpen ? *encoded(lineEnd) + added : added);
}

std::int32_t profileInteger(std::string_view value) {
    const bool isNegative = value.starts_with('-');
    if (isNegative || value.starts_with('+'))
        value.remove_prefix(1);
    std::uint32_t number = 0;
    for (const char character : value) {
        if (character < '0' || character > '9')
            break;
        number = number * 10 + static_cast<std::uint32_t>(character - '0');
    }
    return static_cast<std::int32_t>(isNegative ? 0 - number : number);
}

std::string cutToBuffer(std::string_view text, std::size_t bufferSize) {
    text = text.substr(0, text.find('\0'));
    std::size_t room = bufferSize > 0 ? bufferSize - 1 : 0;
    // No character takes more than four bytes of UTF-8, so the rest cannot matter.
    std::u32string characters = codePoints(text.substr(0, std::min(text.size(), room) * 4));
    std::size_t count = 0;
    for (; count < characters.size(); ++count) {
        const std::string character = utf8({&characters[count], 1});
        const std::size_t size = codePageBytes(character).value_or("?").size();
        if (size > room)
            break;
        room -= size;
    }
    characters.resize(count);
    return utf8(characters);
}

} // namespace vantrel
