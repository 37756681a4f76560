#include "simulator/VariableStore.h"

#include "base/Numbers.h"
#include "base/Text.h"
#include "platform/Files.h"
#include "simulator/ControllerFolder.h"
#include "simulator/ResultCodes.h"

#include <algorithm>
#include <cfloat>
#include <charconv>
#include <cmath>
#include <optional>

namespace vantrel::simulator {
namespace {

/// Millimetres and degrees, with three decimals in seven digits.
constexpr double farthest = 9'999'999.999;

constexpr std::array<VariableKind, 7> kinds = {{
    {"B", 999, 1, 0, 255, true},
    {"I", 999, 1, -32'768, 32'767, true},
    {"D", 999, 1, -2'147'483'648.0, 2'147'483'647.0, true},
    {"R", 999, 1, -FLT_MAX, FLT_MAX, false},
    {"P", 255, 9, -farthest, farthest, false},
    {"BP", 255, 9, -farthest, farthest, false},
    {"EX", 255, 9, -farthest, farthest, false},
}};

/// Written so that a value that is not a number at all is refused too.
bool fits(const VariableKind& kind, double value) {
    return value >= kind.lowest && value <= kind.highest &&
           (!kind.wholeNumbers || std::trunc(value) == value);
}

constexpr std::string_view lineEnd = "\r\n";
constexpr std::size_t shortestNumber = 3; // digits

struct Variable {
    std::int16_t kind = 0;
    std::int16_t number = 0;
    VariableValues values{};
};

std::optional<std::int16_t> kindOfLetters(std::string_view letters) {
    const auto kinds = variableKinds();
    for (std::size_t kind = 0; kind < kinds.size(); ++kind) {
        if (kinds[kind].letters == letters)
            return static_cast<std::int16_t>(kind);
    }
    return std::nullopt;
}

std::optional<std::int16_t> digits(std::string_view text) {
    std::int16_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (text.empty() || error != std::errc{} || end != text.data() + text.size())
        return std::nullopt;
    return value;
}

bool readValues(std::string_view text, std::size_t count, VariableValues& values) {
    if (static_cast<std::size_t>(std::count(text.begin(), text.end(), ',')) + 1 != count)
        return false;
    const auto pieces = split(text, ',');
    for (std::size_t slot = 0; slot < count; ++slot) {
        const auto value = wholeNumber(pieces[slot]);
        if (!value)
            return false;
        values[slot] = *value;
    }
    return true;
}

std::optional<Variable> parseLine(std::string_view line) {
    const auto equals = line.find('=');
    const auto lettersEnd = line.find_first_of("0123456789=");
    if (equals == std::string_view::npos)
        return std::nullopt;
    const auto kind = kindOfLetters(line.substr(0, lettersEnd));
    const auto number = digits(line.substr(lettersEnd, equals - lettersEnd));
    if (!kind || !number || checkVariable(*kind, *number) != code::done)
        return std::nullopt;
    Variable variable{*kind, *number, {}};
    const auto count = variableKinds()[static_cast<std::size_t>(*kind)].valueCount;
    if (!readValues(line.substr(equals + 1), count, variable.values))
        return std::nullopt;
    return variable;
}

std::string formatLine(const VariableKind& kind, std::int16_t number,
                       const VariableValues& values) {
    const auto digitsText = std::to_string(number);
    std::string line(kind.letters);
    if (digitsText.size() < shortestNumber)
        line.append(shortestNumber - digitsText.size(), '0');
    line += digitsText;
    for (std::size_t slot = 0; slot < kind.valueCount; ++slot) {
        line += slot == 0 ? '=' : ',';
        line += generalText(values[slot]);
    }
    return line;
}

} // namespace

std::span<const VariableKind> variableKinds() {
    return kinds;
}

std::int16_t checkVariable(std::int16_t kind, std::int16_t number) {
    if (kind < 0 || static_cast<std::size_t>(kind) >= kinds.size())
        return code::variableKind;
    const auto highest = kinds[static_cast<std::size_t>(kind)].highestNumber;
    return number >= 0 && number <= highest ? code::done : code::variableNumber;
}

std::int16_t checkValues(const VariableKind& kind, const VariableValues& values) {
    for (std::size_t slot = 0; slot < kind.valueCount; ++slot) {
        if (!fits(kind, values[slot]))
            return code::variableValue;
    }
    return code::done;
}

Outcome VariableStore::load() {
    otherLines_.clear();
    variables_.clear();
    if (!isFreeOrPlainFile(path_))
        return Failure{"not a plain file"};
    if (!isPlainFile(path_))
        return Done{};
    const auto content = readFile(path_);
    if (!content)
        return Failure{content.reason()};
    for (const auto line : lines(*content)) {
        if (const auto variable = parseLine(trimmed(line)))
            put(variable->kind, variable->number, variable->values);
        else
            otherLines_.emplace_back(line);
    }
    return Done{};
}

Outcome VariableStore::save() const {
    std::string content;
    for (const auto& line : otherLines_)
        content.append(line).append(lineEnd);
    for (const auto& [key, values] : variables_) {
        const auto& kind = variableKinds()[static_cast<std::size_t>(key.first)];
        content.append(formatLine(kind, key.second, values)).append(lineEnd);
    }
    return writePlainFile(path_, content);
}

VariableValues VariableStore::get(std::int16_t kind, std::int16_t number) const {
    const auto found = variables_.find({kind, number});
    return found == variables_.end() ? VariableValues{} : found->second;
}

void VariableStore::put(std::int16_t kind, std::int16_t number, const VariableValues& values) {
    auto& kept = variables_[{kind, number}];
    kept = {};
    const auto count = variableKinds()[static_cast<std::size_t>(kind)].valueCount;
    std::copy_n(values.begin(), count, kept.begin());
}

} // namespace vantrel::simulator
