#include "ui/WindowPlace.h"

#include "app/ScreenPlace.h"
#include "app/SettingsFile.h"
#include "app/Twips.h"
#include "app/WindowLayout.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include <wx/display.h>
#include <wx/toplevel.h>

namespace vantrel {

namespace {

ScreenRect screenRect(const wxRect& rect) {
    return {rect.x, rect.y, rect.width, rect.height};
}

wxRect onAScreen(const wxRect& wished) {
    std::vector<ScreenRect> screens;
    for (unsigned display = 0; display < wxDisplay::GetCount(); ++display)
        screens.push_back(screenRect(wxDisplay(display).GetClientArea()));
    const auto place = placeOnScreens(screenRect(wished), screens);
    return {place.left, place.top, place.width, place.height};
}

wxRect withinItsScreen(wxRect rect) {
    const int index = wxDisplay::GetFromPoint(rect.GetPosition());
    if (index == wxNOT_FOUND)
        return rect;
    const wxRect screen = wxDisplay(unsigned(index)).GetClientArea();
    rect.width = std::min(rect.width, screen.width);
    rect.height = std::min(rect.height, screen.height);
    rect.x = std::clamp(rect.x, screen.x, screen.GetRight() + 1 - rect.width);
    rect.y = std::clamp(rect.y, screen.y, screen.GetBottom() + 1 - rect.height);
    return rect;
}

wxSize pixels(WindowSize twips, int resolution) {
    return {pixelsFromTwips(twips.width, resolution), pixelsFromTwips(twips.height, resolution)};
}

} // namespace

WindowPlace::WindowPlace(wxTopLevelWindow& window) : window_(window) {
    settleTimer_.Bind(wxEVT_TIMER, [this](wxTimerEvent&) {
        if (window_.IsShown())
            settled_ = Settled{window_.ClientToScreen(wxPoint(0, 0)), window_.GetSize()};
    });
}

void WindowPlace::put(const std::array<std::int32_t, 8>& stored, int resolution,
                      bool isEnlarged) {
    stored_ = stored;
    const wxPoint corner(pixelsFromTwips(stored[0], resolution),
                         pixelsFromTwips(stored[1], resolution));
    const wxRect place(
        corner, pixels(atLeastMinimum({double(stored[2]), double(stored[3])}), resolution));
    putAt(isEnlarged ? withinItsScreen(place) : place, resolution);
}

void WindowPlace::resize(const WindowPlacement& now, int resolution) {
    if (!now.isNormal)
        return;
    const wxRect wished(window_.GetPosition(),
                        pixels(atLeastMinimum({now.width, now.height}), resolution));
    const wxRect outer = withinItsScreen(wished);
    const auto twips = [resolution](int length) {
        return std::int32_t(std::lround(twipsFromPixels(length, resolution)));
    };
    const auto whole = [](double width) { return std::int32_t(std::lround(width)); };
    stored_ = {twips(outer.x),
               twips(outer.y),
               outer.width == wished.width ? whole(now.width) : twips(outer.width),
               outer.height == wished.height ? whole(now.height) : twips(outer.height),
               whole(now.columnWidths[0]),
               whole(now.columnWidths[1]),
               whole(now.columnWidths[2]),
               stored_[7]};
    putAt(outer, resolution);
}

void WindowPlace::putAt(const wxRect& place, int resolution) {
    settled_.reset();
    settleTimer_.Stop();
    window_.SetMinSize(pixels(minimumSize, resolution));
    const wxRect outer = onAScreen(place);
    moveTo(outer);
    // From a place that was brought back no change is counted: what is seen is what is stored.
    constexpr int settleTime = 1000; // milliseconds
    if (outer == place)
        settleTimer_.StartOnce(settleTime);
}

void WindowPlace::moveTo(const wxRect& outer) {
    // A window that believes to be there already does not say so to the window manager, which then
    // chooses a place itself.
    if (window_.GetPosition() == outer.GetPosition() && !window_.IsShown())
        window_.Move(outer.GetPosition() + wxPoint(1, 1));
    window_.SetSize(outer);
}

WindowPlacement WindowPlace::placement(int resolution,
                                       const std::array<int, 3>& columnWidths) const {
    const auto twips = [&](int pixels, std::size_t index) {
        return twipsUnlessUnchanged(pixels, resolution, stored_.at(index));
    };
    // What only the window manager has adjusted is nobody's wish: the stored numbers stay, or the
    // window would drift with every start.
    const auto wished = [&](int change, int now, std::size_t index) {
        // Until then the numbers of the window itself may be those of before.
        if (settleTimer_.IsRunning())
            return double(stored_.at(index));
        if (!settled_)
            return twips(now, index);
        return stored_.at(index) + twipsFromPixels(change, resolution);
    };
    const wxRect outer = window_.GetRect();
    const Settled settled = settled_.value_or(Settled{});
    const wxPoint moved = window_.ClientToScreen(wxPoint(0, 0)) - settled.clientOrigin;
    return {.isNormal = !window_.IsIconized() && !window_.IsMaximized(),
            .left = wished(moved.x, outer.x, 0),
            .top = wished(moved.y, outer.y, 1),
            .width = wished(outer.width - settled.size.x, outer.width, 2),
            .height = wished(outer.height - settled.size.y, outer.height, 3),
            .columnWidths = {twips(columnWidths[0], 4), twips(columnWidths[1], 5),
                             twips(columnWidths[2], 6)}};
}

} // namespace vantrel
