#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include <wx/event.h>
#include <wx/gdicmn.h>
#include <wx/timer.h>

class wxTopLevelWindow;
class wxWindow;

namespace vantrel {

struct WindowPlacement;

/// Where a window stands: puts it at its stored place and says where the operator has moved it.
class WindowPlace {
  public:
    /// `surface` is the child that covers the window's inside: where children are left out of a
    /// window's picture, the window itself is never asked for one. Both live longer.
    WindowPlace(wxTopLevelWindow& window, wxWindow& surface);
    ~WindowPlace();
    WindowPlace(const WindowPlace&) = delete;
    WindowPlace& operator=(const WindowPlace&) = delete;

    /// At the stored place, on a screen that is there, not smaller than a window may be. `stored`
    /// in twips: left, top, width, height and three column widths; `resolution` in pixels per inch.
    /// A window that is larger than the operator has made it stays within its screen. Once more for
    /// the same place does nothing: it would take back what the operator has done since.
    void put(const std::array<std::int32_t, 8>& stored, int resolution, bool isEnlarged);
    /// The size in twips stays while the resolution changes, and so does the upper left corner, as
    /// far as the screen has room.
    void resize(const WindowPlacement& now, int resolution);
    /// The place in twips, with these widths of columns in pixels. Numbers that nobody changed are
    /// the stored ones, whether or not the window could be put there.
    WindowPlacement placement(int resolution, const std::array<int, 3>& columnWidths) const;
    /// The window manager has had its say: from now on the window is where the operator wants it.
    /// Called by itself some time after each move; put off while the window is minimised or
    /// maximised.
    void settle();

  private:
    /// What the window manager has made of the wish, in pixels.
    struct Extent {
        wxSize outer, client;
        wxSize frame() const { return outer - client; }
    };

    void putAt(const wxRect& place, int resolution);
    void moveTo(const wxRect& outer);
    void painted(wxPaintEvent& event);
    Extent extent() const;
    wxPoint clientOrigin() const;
    wxSize changeOfSize() const;
    wxPoint changeOfPlace() const;

    wxTopLevelWindow& window_;
    wxWindow& surface_;
    std::array<std::int32_t, 8> stored_{};
    std::array<double, 4> put_{}; ///< twips: the stored place as it was raised or brought back
    wxRect place_;
    int resolution_ = 0;
    // The client area's place is what all managers agree on. Nothing before they have had their
    // say, the size with the first paint, the place later.
    std::optional<wxPoint> settledOrigin_;
    std::optional<Extent> settledExtent_;
    bool settlesWithPaint_ = false;
    wxTimer settleTimer_;
};

} // namespace vantrel
