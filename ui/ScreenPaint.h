#pragma once

#include <wx/eventfilter.h>

namespace vantrel {

/// Brings the screen in line with the program's windows, for whoever is about to block: what is
/// shown is painted, what was hidden is gone. Nothing but painting runs: what the operator did
/// meanwhile, timers and deferred calls wait for the next yield.
class ScreenPaint : public wxEventFilter {
  public:
    ScreenPaint();
    ~ScreenPaint() override;
    ScreenPaint(const ScreenPaint&) = delete;
    ScreenPaint& operator=(const ScreenPaint&) = delete;

    /// Costs microseconds when nothing has changed. For a window that has just been shown or hidden
    /// it waits until the window manager has answered that its part is done, two seconds at most;
    /// one that has not come by then, as on another desktop, is not waited for again.
    void bringUpToDate();

  private:
    int FilterEvent(wxEvent& event) override;
    void awaitWindows();

    bool eventsRan_ = true;      ///< since the last time
    bool windowsChanged_ = true; ///< one was shown or hidden since
    int givenUp_ = 0;            ///< shown windows that did not come to the screen
    bool managerAnswers_ = true; ///< until the window manager left a question open
};

} // namespace vantrel
