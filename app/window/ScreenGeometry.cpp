#include "app/window/ScreenGeometry.h"

#include <algorithm>
#include <cmath>
#include <limits>

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

constexpr double twipsPerInch = 1440;

} // namespace

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

} // namespace vantrel
