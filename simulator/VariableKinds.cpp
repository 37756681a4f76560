#include "simulator/VariableKinds.h"

#include "simulator/ResultCodes.h"

#include <cfloat>
#include <cmath>

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

} // namespace vantrel::simulator
