#include "platform/ProfileText.h"

#include "base/Text.h"
#include "base/TextCase.h"
#include "platform/CodePage.h"
#include "platform/TextEncoding.h"

#include <algorithm>

namespace vantrel {

namespace {

constexpr std::string_view blanks = " \t";
constexpr std::string_view wideMark = "\xFF\xFE";
constexpr std::string_view lineEnd = "\r\n";

/// A name that is looked for among many, whatever its letter case.
class SoughtName {
  public:
    explicit SoughtName(std::string_view name)
        : name_(name), isAscii_(isAscii(name)), upper_(upperCase(name)) {}

    /// An ASCII name is found by ASCII letters only: a dotless i (U+0131) or long s (U+017F),
    /// though its capital is an ASCII letter, and the Kelvin sign (U+212A) make another name.
    bool matches(std::string_view found) const {
        if (isAscii(found) != isAscii_)
            return false;
        if (isAscii_)
            return equalsIgnoringAsciiCase(found, name_);
        // A name is at most four times as long in its other case; a longer line costs nothing.
        return found.size() <= name_.size() * 4 && upperCase(found) == upper_;
    }

  private:
    std::string_view name_;
    bool isAscii_;
    std::string upper_;
};

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
    // A reader strips tabs in the file, but not those of the name that it looks for.
    if (trimmed(section, blanks) != section || trimmed(key, blanks) != key)
        return Failure{"the name of a section or key begins or ends with a tab"};
    return std::nullopt;
}

/// The lines of a file's bytes in one of its two encodings, or of its text, by position. In all of
/// them the units for CR, LF and "=" are part of no other character.
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

/// All that follows the "=" of the line is the value, so all of it is replaced.
void changeValue(std::string& content, bool isWide, std::size_t line, std::string_view value) {
    const RawLines raw(content, isWide);
    const auto start = raw.lineStart(line);
    const auto valueStart = raw.afterEquals(start);
    content.replace(valueStart, raw.contentEnd(start) - valueStart, value);
}

/// Behind the line of this number, npos for the last one, which is closed first if need be.
void insertAfter(std::string& content, bool isWide, std::size_t line, std::string_view added,
                 std::string_view closing) {
    const RawLines raw(content, isWide);
    const bool atEnd = line == std::string::npos;
    const auto start = atEnd ? content.size() : raw.lineStart(line);
    const auto contentEnd = atEnd ? content.size() : raw.contentEnd(start);
    const bool isOpen = atEnd ? raw.isLastLineOpen() : contentEnd == content.size();
    const auto at = raw.afterLineEnd(contentEnd);
    content.insert(at, added);
    if (isOpen)
        content.insert(at, closing);
}

/// Where a text is added or, as a value, replaced.
struct Change {
    bool replaces = false;
    std::size_t line = 0;
};

void apply(const Change& change, std::string& content, bool isWide, std::string_view added,
           std::string_view closing) {
    if (change.replaces)
        changeValue(content, isWide, change.line, added);
    else
        insertAfter(content, isWide, change.line, added, closing);
}

} // namespace

/// Where a section and a key are, as line numbers.
struct ProfileText::Place {
    bool hasSection = false;
    std::optional<std::string_view> value; ///< as written, without outer blanks
    std::size_t keyLine = 0;
    std::size_t lastLine = std::string::npos; ///< of the section's keys, or its header; or none
};

ProfileText::ProfileText(std::string bytes) : bytes_(std::move(bytes)) {
    decode();
}

void ProfileText::decode() {
    // The first byte of half a character at the end of a wide file counts for nothing.
    const auto whole = std::string_view(bytes_).substr(0, bytes_.size() - bytes_.size() % 2);
    text_ = isWide() ? decodeText(whole).text : fromCodePage(bytes_);
}

bool ProfileText::isWide() const {
    return bytes_.starts_with(wideMark);
}

/// Of equal sections and of equal keys the first counts.
ProfileText::Place ProfileText::find(std::string_view section, std::string_view key) const {
    const SoughtName soughtSection(section);
    const SoughtName soughtKey(key);
    Place place;
    std::string_view rest = text_;
    for (std::size_t number = 0; !rest.empty(); ++number) {
        const auto line = takeLine(rest);
        if (const auto header = headerName(line)) {
            if (place.hasSection)
                break;
            if (soughtSection.matches(*header)) {
                place.hasSection = true;
                place.lastLine = number;
            }
            continue;
        }
        const auto entry = place.hasSection ? entryOf(line) : std::nullopt;
        if (!entry)
            continue;
        place.lastLine = number;
        if (soughtKey.matches(entry->key)) {
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
    const Change change{place.value.has_value(), place.value ? place.keyLine : place.lastLine};
    const std::string added(change.replaces ? value : place.hasSection ? entry : header + entry);
    const auto addedBytes = encoded(added);
    if (!addedBytes)
        return Failure{"the code page lacks a character of \"" + std::string(value) + "\""};
    dropHalfACharacter();
    // Both forms are changed alike, since decoding a long text anew takes longer than all the rest.
    apply(change, bytes_, isWide(), *addedBytes, *encoded(lineEnd));
    apply(change, text_, false, added, lineEnd);
    return Done{};
}

/// Half a character at the end of a wide file would put all that follows out of step.
void ProfileText::dropHalfACharacter() {
    if (isWide() && bytes_.size() % 2 != 0)
        bytes_.pop_back();
}

std::string_view withoutQuotes(std::string_view value) {
    const bool quoted = value.size() >= 2 && value.front() == value.back() &&
                        (value.front() == '"' || value.front() == '\'');
    return quoted ? value.substr(1, value.size() - 2) : value;
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
