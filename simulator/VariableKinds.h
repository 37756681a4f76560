#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace vantrel::simulator {

/// The values of one variable as they cross the interface; a kind uses the first few.
inline constexpr std::size_t valueSlots = 10;
using VariableValues = std::array<double, valueSlots>;

/// What a controller knows about a kind of variable.
struct VariableKind {
    std::string_view letters;
    std::int16_t highestNumber = 0; ///< numbers start at 0
    std::size_t valueCount = 1;
    double lowest = 0;
    double highest = 0;
    bool wholeNumbers = false;
};

/// All kinds; the index is the kind's code.
std::span<const VariableKind> variableKinds();

/// `code::done`, `code::variableKind` or `code::variableNumber`.
std::int16_t checkVariable(std::int16_t kind, std::int16_t number);
/// `code::done` or `code::variableValue`; slots that the kind does not use are not looked at.
std::int16_t checkValues(const VariableKind& kind, const VariableValues& values);

} // namespace vantrel::simulator
