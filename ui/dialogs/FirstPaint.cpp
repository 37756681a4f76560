#include "ui/dialogs/FirstPaint.h"

#include "ui/SystemLook.h"

#include <chrono>

#include <wx/event.h>
#include <wx/utils.h>

namespace vantrel {

FirstPaint::FirstPaint(wxTopLevelWindow& window) : window_(&window) {
    // A window that comes back is painted at once, and the picture is lost when the window manager
    // has not put it on the screen yet.
    window.Bind(wxEVT_PAINT, &FirstPaint::painted, this);
}

FirstPaint::~FirstPaint() {
    if (window_)
        window_->Unbind(wxEVT_PAINT, &FirstPaint::painted, this);
}

void FirstPaint::painted(wxPaintEvent& event) {
    isOver_ = isOver_ || isOnScreen(*window_);
    event.Skip();
}

void FirstPaint::await(wxTopLevelWindow& window, FirstPaint& paint,
                       const std::function<void()>& yield) {
    using Clock = std::chrono::steady_clock;
    constexpr std::chrono::milliseconds longest{250};
    // Any event may take the window away, and what belongs to it.
    const wxWeakRef<wxTopLevelWindow> there(&window);
    const auto deadline = Clock::now() + longest;
    yield();
    while (there && there->IsShown() && !paint.isOver() && Clock::now() < deadline) {
        wxMilliSleep(1);
        yield();
    }
    if (there && there->IsShown())
        paint.isOver_ = true;
}

} // namespace vantrel
