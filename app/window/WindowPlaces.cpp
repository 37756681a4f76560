#include "app/window/WindowPlaces.h"

#include "app/settings/SettingsFile.h"
#include "base/Numbers.h"
#include "base/Text.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

namespace vantrel {
namespace {

// The part of a title bar that a hand needs.
constexpr int gripWidth = 100;
constexpr int gripHeight = 20;

long overlap(long start, long length, long otherStart, long otherLength) {
    return std::min(start + length, otherStart + otherLength) - std::max(start, otherStart);
}

bool canBeTakenHoldOf(const ScreenRect& window, const ScreenRect& screen) {
    return overlap(window.left, window.width, screen.left, screen.width) >=
               std::min(gripWidth, window.width) &&
           overlap(window.top, gripHeight, screen.top, screen.height) >= gripHeight;
}

int centred(int ownerStart, int ownerLength, int length, int screenStart, int screenLength) {
    const int wanted = ownerStart + (ownerLength - length) / 2;
    return std::max(screenStart, std::min(wanted, screenStart + screenLength - length));
}

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

namespace {
constexpr double twipsPerInch = 1440;
}

int pixelsFromTwips(double twips, int dpi) {
    const double pixels = std::round(twips * dpi / twipsPerInch);
    constexpr double limit = std::numeric_limits<std::int16_t>::max();
    // A stored number may be anything; no screen is wider than this.
    return static_cast<int>(std::fmin(std::fmax(pixels, -limit), limit));
}

double twipsFromPixels(int pixels, int dpi) {
    return pixels * twipsPerInch / dpi;
}

double twipsUnlessUnchanged(int pixels, int dpi, std::int32_t storedTwips) {
    return pixelsFromTwips(storedTwips, dpi) == pixels ? storedTwips : twipsFromPixels(pixels, dpi);
}

ScreenRect placeOnScreens(const ScreenRect& wished, const std::vector<ScreenRect>& screens) {
    const auto fits = [&wished](const ScreenRect& screen) {
        return canBeTakenHoldOf(wished, screen);
    };
    if (screens.empty() || std::ranges::any_of(screens, fits))
        return wished;
    const ScreenRect& first = screens.front();
    return {first.left, first.top, std::min(wished.width, first.width),
            std::min(wished.height, first.height)};
}

ScreenRect centredOver(const ScreenRect& owner, int width, int height, const ScreenRect& screen) {
    return {centred(owner.left, owner.width, width, screen.left, screen.width),
            centred(owner.top, owner.height, height, screen.top, screen.height), width, height};
}

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
