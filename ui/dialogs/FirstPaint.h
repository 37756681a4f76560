#pragma once

#include <functional>

#include <wx/toplevel.h>
#include <wx/weakref.h>

namespace vantrel {

/// Knows whether a window has been painted since it was last shown. A window that has just been
/// shown is on the screen only some events later, and the work that follows may not let any run.
class FirstPaint {
  public:
    /// The window may be gone before this object, and the other way round.
    explicit FirstPaint(wxTopLevelWindow& window);
    ~FirstPaint();
    FirstPaint(const FirstPaint&) = delete;
    FirstPaint& operator=(const FirstPaint&) = delete;

    /// To be called when the window is shown.
    void expect() { isOver_ = false; }
    /// Painted, or given up.
    bool isOver() const { return isOver_; }

    /// Yields at least once, and then until the window is painted or gone, for a quarter of a
    /// second at most: without a window manager it may never come. Then it is given up until the
    /// window is shown again, for this would cost a quarter of a second with every yield.
    static void await(wxTopLevelWindow& window, FirstPaint& paint,
                      const std::function<void()>& yield);

  private:
    void painted(wxPaintEvent& event);

    wxWeakRef<wxTopLevelWindow> window_;
    bool isOver_ = true;
};

} // namespace vantrel
