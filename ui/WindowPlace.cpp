#include "ui/WindowPlace.h"

#include "app/ScreenPlace.h"
#include "app/SettingsFile.h"
#include "app/Twips.h"
#include "app/WindowLayout.h"

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

} // namespace

WindowPlace::WindowPlace(wxTopLevelWindow& window, const std::array<std::int32_t, 8>& stored)
    : window_(window), stored_(stored) {
    settleTimer_.Bind(wxEVT_TIMER, [this](wxTimerEvent&) {
        settled_ = Settled{window_.ClientToScreen(wxPoint(0, 0)), window_.GetSize()};
    });
}

void WindowPlace::put(int resolution) {
    const auto pixels = [resolution](double twips) { return pixelsFromTwips(twips, resolution); };
    const auto size = [&pixels](WindowSize twips) {
        return wxSize(pixels(twips.width), pixels(twips.height));
    };
    window_.SetMinSize(size(minimumSize));
    const wxSize wished = size(atLeastMinimum({double(stored_[2]), double(stored_[3])}));
    const wxRect stored(wxPoint(pixels(stored_[0]), pixels(stored_[1])), wished);
    const wxRect outer = onAScreen(stored);
    moveTo(outer);
    // From a place that was brought back no change is counted: what is seen is what is stored.
    constexpr int settleTime = 1000; // milliseconds
    if (outer == stored)
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
