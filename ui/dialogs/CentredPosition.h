#pragma once

namespace vantrel {

/// Pixels on the desktop.
struct PixelRectangle {
    int left = 0, top = 0, width = 0, height = 0;
};
struct PixelExtent {
    int width = 0, height = 0;
};
struct PixelPosition {
    int left = 0, top = 0;

    bool operator==(const PixelPosition&) const = default;
};

/// Where a dialog stands centred over its owner. A place past an edge of the screen is pulled back;
/// of a dialog larger than the screen the upper left corner stays visible.
PixelPosition centredPosition(const PixelRectangle& owner, const PixelExtent& dialog,
                              const PixelRectangle& screen);

} // namespace vantrel
