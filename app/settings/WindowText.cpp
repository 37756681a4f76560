#include "app/settings/WindowText.h"

#include "app/settings/SettingsFile.h"
#include "base/Numbers.h"
#include "base/Text.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <vector>

namespace vantrel {
namespace {

// The last field passes through single precision before it is rounded, as it was written.
std::optional<double> fieldNumber(std::string_view field, bool isLast) {
    const std::optional<double> number = wholeNumber(field);
    if (!number || !isLast)
        return number;
    if (std::fabs(*number) > std::numeric_limits<float>::max())
        return {};
    return static_cast<double>(static_cast<float>(*number));
}

std::optional<std::int32_t> fieldPosition(std::string_view field, bool isLast) {
    const std::optional<double> number = fieldNumber(field, isLast);
    return number ? rounded32(*number) : std::nullopt;
}

std::array<double, 7> currentNumbers(const std::array<std::int32_t, 8>& positions,
                                     const WindowPlacement& placement) {
    const auto& columns = placement.columnWidths;
    if (placement.isNormal)
        return {placement.left, placement.top, placement.width, placement.height,
                columns[0],     columns[1],    columns[2]};
    return {static_cast<double>(positions[0]),
            static_cast<double>(positions[1]),
            static_cast<double>(positions[2]),
            static_cast<double>(positions[3]),
            columns[0],
            columns[1],
            columns[2]};
}

/// `isLast` is the field's place in the text to write, since that is how it will be read.
double withStoredFraction(double number, std::string_view field, bool isLast) {
    const std::optional<std::int32_t> stored = fieldPosition(field, isLast);
    return stored && number == *stored ? *wholeNumber(field) : number;
}

} // namespace

void readWindowText(std::string_view text, std::array<std::int32_t, 8>& positions) {
    const std::vector<std::string_view> fields = split(text, ',');
    const std::size_t count = std::min(fields.size(), positions.size());
    for (std::size_t index = 0; index < count; ++index) {
        const auto position = fieldPosition(fields[index], index + 1 == fields.size());
        if (position)
            positions[index] = *position;
    }
}

std::string windowText(const std::array<std::int32_t, 8>& positions,
                       const WindowPlacement& placement, std::string_view storedText) {
    const std::array<double, 7> numbers = currentNumbers(positions, placement);
    const std::vector<std::string_view> stored = split(storedText, ',');
    std::string text;
    for (std::size_t index = 0; index < numbers.size(); ++index) {
        double number = numbers[index];
        if (index < stored.size())
            number = withStoredFraction(number, stored[index], index + 1 == numbers.size());
        text += (index == 0 ? "" : ",") + generalText(number);
    }
    return text;
}

} // namespace vantrel
