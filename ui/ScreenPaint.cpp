#include "ui/ScreenPaint.h"

#include "ui/Painting.h"
#include "ui/look/SystemLook.h"

#include <chrono>

#include <wx/event.h>
#include <wx/listctrl.h>
#include <wx/toplevel.h>
#include <wx/utils.h>

namespace vantrel {

namespace {

using Clock = std::chrono::steady_clock;

/// Windows that are shown, but not to be seen yet.
int missingWindows() {
    int missing = 0;
    for (const auto* const window : wxTopLevelWindows) {
        const auto* const top = dynamic_cast<const wxTopLevelWindow*>(window);
        if (top && top->IsShown() && !top->IsIconized() && !isOnScreen(*top))
            ++missing;
    }
    return missing;
}

/// A list that was filled anew finds the places of its rows when the program is idle, and is not
/// painted before.
void placeRows(wxWindow& window) {
    for (wxWindow* const child : window.GetChildren()) {
        if (auto* const list = dynamic_cast<wxListCtrl*>(child))
            list->OnInternalIdle();
        placeRows(*child);
    }
}

void placeRowsOfShownWindows() {
    for (wxWindow* const window : wxTopLevelWindows)
        if (window->IsShown())
            placeRows(*window);
}

} // namespace

ScreenPaint::ScreenPaint() {
    wxEvtHandler::AddFilter(this);
}

ScreenPaint::~ScreenPaint() {
    wxEvtHandler::RemoveFilter(this);
}

int ScreenPaint::FilterEvent(wxEvent& event) {
    eventsRan_ = true;
    windowsChanged_ = windowsChanged_ || event.GetEventType() == wxEVT_SHOW;
    return Event_Skip;
}

void ScreenPaint::bringUpToDate() {
    if (eventsRan_ || areWindowEventsPending()) {
        takeWindowEvents();
        placeRowsOfShownWindows();
        if (windowsChanged_ || missingWindows() != givenUp_)
            awaitWindows();
    }
    paintChanges();
    eventsRan_ = false;
}

void ScreenPaint::awaitWindows() {
    constexpr std::chrono::seconds longest{2};
    constexpr int enough = 3; // rounds in which nothing happened: what is missing does not come
    const auto deadline = Clock::now() + longest;
    int quietRounds = 0;
    bool isDone = false;
    while (!isDone && Clock::now() < deadline) {
        // Before the events are taken: of what came to the screen later some may be under way.
        givenUp_ = missingWindows();
        const bool answered = !managerAnswers_ || awaitWindowManager(deadline);
        managerAnswers_ = managerAnswers_ && answered;
        const bool tookSome = takeWindowEvents();
        paintChanges();
        quietRounds = answered && !tookSome ? quietRounds + 1 : 0;
        isDone = quietRounds >= (givenUp_ == 0 ? 1 : enough);
        if (givenUp_ > 0)
            wxMilliSleep(1);
    }
    windowsChanged_ = false;
}

} // namespace vantrel
