#include "app/ScreenPlace.h"

#include <algorithm>

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

} // namespace

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

} // namespace vantrel
