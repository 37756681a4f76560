#include "ui/dialogs/CentredPosition.h"

#include <algorithm>

namespace vantrel {
namespace {

int centred(int ownerStart, int ownerLength, int length, int screenStart, int screenLength) {
    const int wanted = ownerStart + (ownerLength - length) / 2;
    return std::max(screenStart, std::min(wanted, screenStart + screenLength - length));
}

} // namespace

PixelPosition centredPosition(const PixelRectangle& owner, const PixelExtent& dialog,
                              const PixelRectangle& screen) {
    return {centred(owner.left, owner.width, dialog.width, screen.left, screen.width),
            centred(owner.top, owner.height, dialog.height, screen.top, screen.height)};
}

} // namespace vantrel
