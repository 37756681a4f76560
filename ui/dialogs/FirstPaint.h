#pragma once

#include <functional>

class wxTopLevelWindow;

namespace vantrel {

/// Knows whether a window has been painted since it was last shown. A window that has just been
/// shown is on the screen only some events later, and the work that follows may not let any run.
class FirstPaint {
  public:
    explicit FirstPaint(wxTopLevelWindow& window);
    FirstPaint(const FirstPaint&) = delete;
    FirstPaint& operator=(const FirstPaint&) = delete;

    /// To be called when the window is shown.
    void expect() { painted_ = false; }
    bool painted() const { return painted_; }

    /// Yields at least once, and then until the window is painted or gone, for a quarter of a
    /// second at most: without a window manager it may never come.
    static void await(wxTopLevelWindow& window, const FirstPaint& paint,
                      const std::function<void()>& yield);

  private:
    bool painted_ = true;
};

} // namespace vantrel
