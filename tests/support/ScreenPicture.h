#pragma once

#include "support/ToolkitPort.h"

#include <algorithm>
#include <cstdint>
#include <set>
#include <vector>

#include <wx/window.h>

namespace vantrel::tests {

/// What a part of the screen shows at this moment, as the display has it, whatever the toolkit
/// believes.
class ScreenPicture {
  public:
    /// What lies outside the screen is left out.
    explicit ScreenPicture(wxRect area) : area_(area), pixels_(pixelsOnScreen(area_)) {}
    /// Of a window, without its frame.
    explicit ScreenPicture(const wxWindow& window)
        : ScreenPicture(wxRect(window.ClientToScreen(wxPoint(0, 0)), window.GetClientSize())) {}

    bool operator==(const ScreenPicture& other) const { return pixels_ == other.pixels_; }
    std::size_t colours() const { return std::set(pixels_.begin(), pixels_.end()).size(); }
    /// Red, green and blue, a byte each.
    std::uint32_t at(int x, int y) const {
        return pixels_.at(static_cast<std::size_t>(y) * static_cast<std::size_t>(area_.width) +
                          static_cast<std::size_t>(x));
    }
    int width() const { return area_.width; }
    int height() const { return area_.height; }

  private:
    wxRect area_;
    std::vector<std::uint32_t> pixels_;
};

} // namespace vantrel::tests
