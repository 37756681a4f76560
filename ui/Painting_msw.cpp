#include "ui/Painting.h"

#include <wx/msw/private.h>
#include <wx/toplevel.h>

namespace vantrel {

// Showing, hiding and moving are done when their calls return; what is left is to paint.
void paintChanges() {
    for (const wxWindow* const window : wxTopLevelWindows)
        if (window->IsShown())
            ::RedrawWindow(GetHwndOf(window), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    ::GdiFlush();
}

bool areWindowEventsPending() {
    return false;
}

bool takeWindowEvents() {
    return false;
}

bool awaitWindowManager(std::chrono::steady_clock::time_point /*deadline*/) {
    return true;
}

} // namespace vantrel
