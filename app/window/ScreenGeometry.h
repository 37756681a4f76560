#pragma once

#include <cstdint>
#include <vector>

namespace vantrel {

/// Twips are 1/1440 inch. To pixels they are rounded once; `dpi` is pixels per inch.
int pixelsFromTwips(double twips, int dpi);
double twipsFromPixels(int pixels, int dpi);

/// A length on the screen in twips again, but the stored length where that one gives these very
/// pixels: nobody has changed it, and it must not drift with every start of the program.
double twipsUnlessUnchanged(int pixels, int dpi, std::int32_t storedTwips);

/// Pixels from the corner of the first screen; other screens may lie at negative places.
struct ScreenRect {
    int left = 0, top = 0, width = 0, height = 0;

    bool operator==(const ScreenRect&) const = default;
};

/// Where a window goes that was stored at `wished`: there, when enough of its title bar lies on one
/// of the screens to take hold of it; else onto the first screen, with its size as far as that has
/// room. `screens` are the parts that task bars leave free; without any the wish stands.
ScreenRect placeOnScreens(const ScreenRect& wished, const std::vector<ScreenRect>& screens);

/// Where a dialog stands centred over its owner. A place past an edge of the screen is pulled back;
/// of a dialog larger than the screen the upper left corner stays visible.
ScreenRect centredOver(const ScreenRect& owner, int width, int height, const ScreenRect& screen);

} // namespace vantrel
