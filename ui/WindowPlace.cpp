#include "ui/WindowPlace.h"

#include "app/settings/SettingsFile.h"
#include "app/window/ScreenGeometry.h"
#include "app/window/WindowLayout.h"
#include "ui/look/SystemLook.h"

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

constexpr int settleTime = 1000; // milliseconds

bool isNormal(const wxTopLevelWindow& window) {
    return !window.IsIconized() && !window.IsMaximized() && !window.IsFullScreen();
}

} // namespace

WindowPlace::WindowPlace(wxTopLevelWindow& window, wxWindow& surface)
    : window_(window), surface_(surface) {
    settleTimer_.Bind(wxEVT_TIMER, [this](wxTimerEvent&) { settle(); });
    surface_.Bind(wxEVT_PAINT, &WindowPlace::painted, this);
}

WindowPlace::~WindowPlace() {
    surface_.Unbind(wxEVT_PAINT, &WindowPlace::painted, this);
}

void WindowPlace::put(const std::array<std::int32_t, 8>& stored, int resolution, bool isEnlarged) {
    const wxPoint corner(pixelsFromTwips(stored[0], resolution),
                         pixelsFromTwips(stored[1], resolution));
    const wxRect wished(corner,
                        pixels(atLeastMinimum({double(stored[2]), double(stored[3])}), resolution));
    const wxRect place = isEnlarged ? withinItsScreen(wished) : wished;
    if (window_.IsShown() && stored == stored_ && place == place_ && resolution == resolution_)
        return;
    stored_ = stored;
    putAt(place, resolution);
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
    settledOrigin_.reset();
    settledExtent_.reset();
    place_ = place;
    resolution_ = resolution;
    window_.SetMinSize(pixels(minimumSize, resolution));
    const wxRect outer = onAScreen(place);
    const std::array<int, 4> lengths{outer.x, outer.y, outer.width, outer.height};
    for (std::size_t index = 0; index < lengths.size(); ++index)
        put_.at(index) = twipsUnlessUnchanged(lengths.at(index), resolution, stored_.at(index));
    settlesWithPaint_ = !window_.IsShown();
    moveTo(outer);
    settleTimer_.StartOnce(settleTime);
}

void WindowPlace::moveTo(const wxRect& outer) {
    // A window that believes to be there already does not say so to the window manager, which then
    // chooses a place itself.
    if (window_.GetPosition() == outer.GetPosition() && !window_.IsShown())
        window_.Move(outer.GetPosition() + wxPoint(1, 1));
    window_.SetSize(outer);
}

// With its first picture a window has the size that the window manager gives it: what changes it
// from then on is the operator, however soon.
void WindowPlace::painted(wxPaintEvent& event) {
    event.Skip();
    if (!settlesWithPaint_ || !isOnScreen(window_) || !isNormal(window_))
        return;
    settlesWithPaint_ = false;
    settledExtent_ = extent();
}

void WindowPlace::settle() {
    settleTimer_.Stop();
    if (!window_.IsShown())
        return;
    // A minimised or maximised window has a place that is not its own.
    if (!isNormal(window_)) {
        settleTimer_.StartOnce(settleTime);
        return;
    }
    settlesWithPaint_ = false;
    settledOrigin_ = clientOrigin();
    // A frame that came late has changed the size, not the operator.
    if (!settledExtent_ || settledExtent_->frame() != extent().frame())
        settledExtent_ = extent();
}

WindowPlace::Extent WindowPlace::extent() const {
    return {window_.GetSize(), window_.GetClientSize()};
}

wxPoint WindowPlace::clientOrigin() const {
    return window_.ClientToScreen(wxPoint(0, 0));
}

wxSize WindowPlace::changeOfSize() const {
    const Extent now = extent();
    if (!settledExtent_ || settledExtent_->frame() != now.frame())
        return {};
    return now.outer - settledExtent_->outer;
}

wxPoint WindowPlace::changeOfPlace() const {
    return settledOrigin_ ? clientOrigin() - *settledOrigin_ : wxPoint(0, 0);
}

WindowPlacement WindowPlace::placement(int resolution,
                                       const std::array<int, 3>& columnWidths) const {
    const auto columnTwips = [&](int pixels, std::size_t index) {
        return twipsUnlessUnchanged(pixels, resolution, stored_.at(index));
    };
    // What only the window manager has adjusted is nobody's wish: the stored numbers stay, or the
    // window would drift with every start.
    const auto wished = [&](int change, std::size_t index) {
        return change == 0 ? double(stored_.at(index))
                           : put_.at(index) + twipsFromPixels(change, resolution);
    };
    const wxPoint moved = changeOfPlace();
    const wxSize grown = changeOfSize();
    return {.isNormal = !window_.IsIconized() && !window_.IsMaximized(),
            .left = wished(moved.x, 0),
            .top = wished(moved.y, 1),
            .width = wished(grown.x, 2),
            .height = wished(grown.y, 3),
            .columnWidths = {columnTwips(columnWidths[0], 4), columnTwips(columnWidths[1], 5),
                             columnTwips(columnWidths[2], 6)}};
}

} // namespace vantrel
