#pragma once

#include <cmath>

namespace vantrel {

inline constexpr double twipsPerInch = 1440.0;

/// Rounded once, to the pixels of a window with this resolution (dots per inch).
inline int pixelsFromTwips(double twips, int dpi) {
    return int(std::lround(twips * dpi / twipsPerInch));
}

inline double twipsFromPixels(int pixels, int dpi) {
    return pixels * twipsPerInch / dpi;
}

} // namespace vantrel
