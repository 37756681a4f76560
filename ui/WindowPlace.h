#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include <wx/gdicmn.h>
#include <wx/timer.h>

class wxTopLevelWindow;

namespace vantrel {

struct WindowPlacement;

/// Where a window stands: puts it at its stored place and says where the operator has moved it.
class WindowPlace {
  public:
    explicit WindowPlace(wxTopLevelWindow& window);

    /// At the stored place, on a screen that is there, not smaller than a window may be. `stored`
    /// in twips: left, top, width, height and three column widths; `resolution` in pixels per inch.
    /// A window that is larger than the operator has made it stays within its screen.
    void put(const std::array<std::int32_t, 8>& stored, int resolution, bool isEnlarged);
    /// The size in twips stays while the resolution changes, and so does the upper left corner, as
    /// far as the screen has room.
    void resize(const WindowPlacement& now, int resolution);
    /// The place in twips, with these widths of columns in pixels. Numbers that nobody changed are
    /// the stored ones.
    WindowPlacement placement(int resolution, const std::array<int, 3>& columnWidths) const;

  private:
    /// Where the window stands once the window manager has had its say, in pixels. The client
    /// area's place is what all managers agree on.
    struct Settled {
        wxPoint clientOrigin;
        wxSize size;
    };

    void putAt(const wxRect& place, int resolution);
    void moveTo(const wxRect& outer);

    wxTopLevelWindow& window_;
    std::array<std::int32_t, 8> stored_{};
    std::optional<Settled> settled_;
    wxTimer settleTimer_;
};

} // namespace vantrel
