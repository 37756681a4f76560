#include "link/VariableEntry.h"

#include "base/Numbers.h"
#include "base/Text.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>

namespace vantrel {
namespace {

struct Kind {
    std::string_view letters;
    std::size_t lettersRead; ///< characters before the number, whatever the second one is
    std::size_t valuesWritten;
};

constexpr std::array<Kind, 7> kinds{
    {{"B", 1, 1}, {"I", 1, 1}, {"D", 1, 1}, {"R", 1, 1}, {"P", 1, 9}, {"BP", 2, 9}, {"EX", 2, 9}}};

constexpr std::int16_t kindB = 0;
constexpr std::int16_t kindBP = 5;
constexpr std::int16_t kindEX = 6;

std::optional<std::int16_t> kindOf(std::string_view line) {
    const std::string letters = asciiUpper(line.substr(0, 2));
    switch (letters.empty() ? '\0' : letters.front()) {
    case 'B':
        return letters == "BP" ? kindBP : kindB;
    case 'I':
        return std::int16_t{1};
    case 'D':
        return std::int16_t{2};
    case 'R':
        return std::int16_t{3};
    case 'P':
        return std::int16_t{4};
    case 'E':
        return kindEX;
    default:
        return {};
    }
}

std::optional<double> valueOf(std::string_view text) {
    return trimmed(text).empty() ? 0.0 : wholeNumber(text);
}

std::optional<std::int16_t> numberOf(std::string_view text) {
    const auto value = valueOf(text);
    const bool valid = value && std::trunc(*value) == *value && *value >= 0 &&
                       *value <= std::numeric_limits<std::int16_t>::max();
    if (!valid)
        return {};
    return static_cast<std::int16_t>(*value);
}

bool readValues(std::string_view text, VariableValues& values) {
    for (double& slot : values) {
        const std::size_t comma = text.find(',');
        const auto value = valueOf(text.substr(0, comma));
        if (!value)
            return false;
        slot = *value;
        if (comma == std::string_view::npos)
            return true;
        text.remove_prefix(comma + 1);
    }
    return false;
}

} // namespace

std::optional<VariableEntry> VariableEntry::parse(std::string_view line) {
    const auto kind = kindOf(line);
    if (!kind)
        return {};
    const Kind& read = kinds[static_cast<std::size_t>(*kind)];
    const std::string_view rest = line.substr(firstCharacters(line, read.lettersRead).size());
    const std::size_t equals = rest.find('=');
    if (equals == std::string_view::npos)
        return {};
    const auto number = numberOf(rest.substr(0, equals));
    VariableEntry entry;
    if (!number || !readValues(rest.substr(equals + 1), entry.values))
        return {};
    entry.kind = *kind;
    entry.number = *number;
    return entry;
}

bool VariableEntry::isFinite() const {
    const auto written =
        static_cast<std::ptrdiff_t>(kinds[static_cast<std::size_t>(kind)].valuesWritten);
    return std::all_of(values.begin(), values.begin() + written,
                       [](double value) { return std::isfinite(value); });
}

std::string VariableEntry::format() const {
    const Kind& written = kinds[static_cast<std::size_t>(kind)];
    std::string digits = std::to_string(number);
    if (digits.size() < 3)
        digits.insert(0, 3 - digits.size(), '0');
    std::string text = std::string(written.letters) + digits + "=";
    for (std::size_t slot = 0; slot < written.valuesWritten; ++slot)
        text += (slot > 0 ? "," : "") + generalText(values[slot]);
    return text;
}

} // namespace vantrel
