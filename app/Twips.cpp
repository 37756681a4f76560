#include "app/Twips.h"

#include <cmath>
#include <limits>

namespace vantrel {

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

} // namespace vantrel
