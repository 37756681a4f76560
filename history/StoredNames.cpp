#include "history/StoredNames.h"

#include "base/Text.h"
#include "base/TextCase.h"

#include <array>
#include <charconv>
#include <system_error>

namespace vantrel {
namespace {

constexpr std::string_view neverPlain = "\"*/:<>?\\|~%";
constexpr char deleteCharacter = 0x7F;

std::string escaped(std::string_view bytes) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string text;
    for (const char byte : bytes) {
        const auto value = static_cast<unsigned char>(byte);
        text += {'%', digits[value >> 4U], digits[value & 15U]};
    }
    return text;
}

/// The first character, whole; one byte where that is no UTF-8.
std::string_view firstOf(std::string_view text) {
    const std::string_view character = firstCharacters(text, 1);
    return isValidUtf8(character) ? character : text.substr(0, 1);
}

bool isPlain(std::string_view character) {
    const char first = character.front();
    const bool isControl = (first >= 0 && first < ' ') || first == deleteCharacter;
    return !isControl && neverPlain.find(first) == std::string_view::npos && isValidUtf8(character);
}

/// CON, PRN, AUX, NUL, COM0 to COM9, LPT0 to LPT9 and the two with a superscript digit, with any
/// ending.
bool isDevice(std::string_view name) {
    const std::string stem = upperCase(trimmed(name.substr(0, name.find('.')), " "));
    constexpr std::array<std::string_view, 6> whole{"CON", "PRN",    "AUX",
                                                    "NUL", "CONIN$", "CONOUT$"};
    for (const std::string_view device : whole)
        if (stem == device)
            return true;
    if (!stem.starts_with("COM") && !stem.starts_with("LPT"))
        return false;
    const std::string_view port = std::string_view(stem).substr(3);
    constexpr std::array<std::string_view, 3> superscripts{"\u00B9", "\u00B2", "\u00B3"};
    const bool isDigit = port.size() == 1 && port.front() >= '0' && port.front() <= '9';
    return isDigit || port == superscripts[0] || port == superscripts[1] || port == superscripts[2];
}

/// With the first `spelledOut` characters written byte by byte whatever they are.
std::string stored(std::string_view name, std::size_t spelledOut) {
    std::string text;
    for (std::string_view rest = name; !rest.empty();) {
        const std::string_view character = firstOf(rest);
        const bool isFirst = rest.size() == name.size();
        const bool isLast = rest.size() == character.size();
        rest.remove_prefix(character.size());
        const bool isPoint = character == ".";
        const bool isAtAnEnd = (isPoint && (isFirst || isLast)) || (character == " " && isLast);
        const bool isSpelled = spelledOut > 0;
        spelledOut -= isSpelled ? 1 : 0;
        text += isSpelled || isAtAnEnd || !isPlain(character) ? escaped(character)
                                                              : std::string(character);
    }
    return text;
}

bool byteFrom(std::string_view digits, char& byte) {
    unsigned value = 0;
    const auto [end, error] =
        std::from_chars(digits.data(), digits.data() + digits.size(), value, 16);
    byte = static_cast<char>(value);
    return digits.size() == 2 && error == std::errc() && end == digits.data() + digits.size();
}

} // namespace

std::string storedName(std::string_view name) {
    return stored(name, isDevice(name) ? 1 : 0);
}

std::string nameFromStored(std::string_view stored) {
    std::string name;
    for (std::size_t at = 0; at < stored.size(); ++at) {
        char byte = 0;
        if (stored[at] == '%' && byteFrom(stored.substr(at + 1, 2), byte))
            at += 2;
        else
            byte = stored[at];
        name += byte;
    }
    return name;
}

StoredPlaces::StoredPlaces(const std::vector<std::string>& places,
                           const std::vector<std::string>& others) {
    for (const std::string& other : others)
        taken_.insert(upperCase(other));
    for (const std::string& place : places) {
        placeOf_.emplace(nameFromStored(place), place);
        taken_.insert(upperCase(place));
    }
}

std::string StoredPlaces::placeFor(const std::string& name) {
    if (const auto known = placeOf_.find(name); known != placeOf_.end())
        return known->second;
    std::string place = storedName(name);
    // Spelled out whole it differs from that of every other name.
    for (std::size_t spelledOut = 1; taken_.contains(upperCase(place)) && spelledOut <= name.size();
         ++spelledOut)
        place = stored(name, spelledOut);
    if (name.empty() || place.size() > longest)
        return {};
    taken_.insert(upperCase(place));
    placeOf_.emplace(name, place);
    return place;
}

} // namespace vantrel
