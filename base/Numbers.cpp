#include "base/Numbers.h"

#include "base/Text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>

namespace vantrel {

namespace {

struct Scanned {
    double value = 0;
    std::size_t length = 0; ///< bytes used; 0 when the text starts with no number
    bool fits = true;       ///< false when the value lies beyond a double's range
};

bool isDigit(char character) {
    return character >= '0' && character <= '9';
}

/// Whether a number that no double holds is too large rather than too small: the power of ten of
/// its first significant digit decides.
bool isTooLarge(std::string_view number) {
    const auto mantissa = number.substr(0, number.find_first_of("eE"));
    const auto exponentText = trimmed(number.substr(mantissa.size()), "eE+");
    const auto point = std::min(mantissa.find('.'), mantissa.size());
    const auto significant = std::min(mantissa.find_first_of("123456789"), mantissa.size());
    const double exponent = exponentText.empty() ? 0.0 : leadingNumber(exponentText);
    return static_cast<double>(point) - static_cast<double>(significant) + exponent > 0;
}

/// An unsigned number. Words such as "inf" and hexadecimal forms are none.
Scanned scanUnsigned(std::string_view text) {
    if (text.empty() || (!isDigit(text.front()) && text.front() != '.'))
        return {};
    Scanned scanned;
    const auto [end, error] =
        std::from_chars(text.data(), text.data() + text.size(), scanned.value);
    scanned.length = static_cast<std::size_t>(end - text.data());
    if (error == std::errc::result_out_of_range) {
        const bool large = isTooLarge(text.substr(0, scanned.length));
        scanned.value = large ? std::numeric_limits<double>::max() : 0.0;
        scanned.fits = !large;
    }
    return error == std::errc::invalid_argument ? Scanned{} : scanned;
}

/// A number with its sign, at the very start of the text.
Scanned scanSigned(std::string_view text) {
    const bool hasSign = text.starts_with('-') || text.starts_with('+');
    Scanned scanned = scanUnsigned(text.substr(hasSign ? 1 : 0));
    if (scanned.length == 0 || !hasSign)
        return scanned;
    ++scanned.length;
    if (text.front() == '-')
        scanned.value = -scanned.value;
    return scanned;
}

template <typename Integer>
Integer leadingInteger(std::string_view text) {
    constexpr auto lowest = static_cast<double>(std::numeric_limits<Integer>::min());
    constexpr auto highest = static_cast<double>(std::numeric_limits<Integer>::max());
    return static_cast<Integer>(std::clamp(std::trunc(leadingNumber(text)), lowest, highest));
}

} // namespace

double leadingNumber(std::string_view text) {
    const auto start = text.find_first_not_of(" \t\r\n");
    return start == std::string_view::npos ? 0.0 : scanSigned(text.substr(start)).value;
}

std::int16_t leadingInteger16(std::string_view text) {
    return leadingInteger<std::int16_t>(text);
}

std::int32_t leadingInteger32(std::string_view text) {
    return leadingInteger<std::int32_t>(text);
}

std::optional<double> wholeNumber(std::string_view text) {
    const auto number = trimmed(text);
    const Scanned scanned = scanSigned(number);
    if (scanned.length == 0 || scanned.length != number.size() || !scanned.fits)
        return std::nullopt;
    return scanned.value;
}

std::optional<bool> truthValue(std::string_view text) {
    const auto word = trimmed(text);
    if (equalsIgnoringAsciiCase(word, "True"))
        return true;
    if (equalsIgnoringAsciiCase(word, "False"))
        return false;
    // A number that is too large for a number is none that is 0.
    const Scanned scanned = scanSigned(word);
    if (scanned.length == 0 || scanned.length != word.size())
        return std::nullopt;
    return scanned.value != 0;
}

std::optional<std::int32_t> rounded32(double value) {
    constexpr double lowest = std::numeric_limits<std::int32_t>::min();
    constexpr double highest = std::numeric_limits<std::int32_t>::max();
    if (!(value >= lowest - 1 && value <= highest + 1))
        return std::nullopt;
    // Worked out by hand, since a foreign library may leave the processor in another rounding mode.
    double whole = std::floor(value);
    const double rest = value - whole;
    if (rest > 0.5 || (rest == 0.5 && std::fmod(whole, 2.0) != 0.0))
        ++whole;
    if (whole < lowest || whole > highest)
        return std::nullopt;
    return static_cast<std::int32_t>(whole);
}

std::string generalText(double value) {
    constexpr double smallestPlain = 1e-7;
    constexpr double firstLarge = 1e15;
    if (value == 0)
        return "0"; // a negative zero too
    const double size = std::abs(value);
    const bool plain = size >= smallestPlain && size < firstLarge;
    std::array<char, 64> buffer{};
    const auto [end, error] =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                      plain ? std::chars_format::fixed : std::chars_format::scientific);
    return {buffer.data(), end};
}

} // namespace vantrel
