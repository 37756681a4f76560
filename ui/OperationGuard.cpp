#include "ui/OperationGuard.h"

#include <wx/app.h>
#include <wx/timer.h>
#include <wx/window.h>

namespace vantrel {

namespace {

bool isMousePress(const wxEvent& event) {
    const auto* mouse = dynamic_cast<const wxMouseEvent*>(&event);
    return mouse && (mouse->ButtonDown() || mouse->ButtonUp() || mouse->ButtonDClick() ||
                     mouse->GetEventType() == wxEVT_MOUSEWHEEL);
}

/// Whether an event is something that the operator does, as opposed to painting, sizing and the
/// like. Menu, tool, button, list and tree events are all command events.
bool isOperatorAction(const wxEvent& event) {
    return event.IsCommandEvent() || dynamic_cast<const wxKeyEvent*>(&event) ||
           isMousePress(event) || dynamic_cast<const wxTimerEvent*>(&event) ||
           dynamic_cast<const wxDropFilesEvent*>(&event);
}

/// A message that a window sends itself about its own state, which no operator caused.
bool isNotice(const wxEvent& event) {
    const auto type = event.GetEventType();
    return type == wxEVT_CREATE || type == wxEVT_DESTROY || type == wxEVT_CHILD_FOCUS ||
           type == wxEVT_HELP;
}

} // namespace

OperationGuard::OperationGuard(bool& busy) : busy_(busy) {
    wxEvtHandler::AddFilter(this);
}

OperationGuard::~OperationGuard() {
    wxEvtHandler::RemoveFilter(this);
}

void OperationGuard::lock() {
    const bool begins = operations_++ == 0;
    busy_ = true;
    if (begins && onBegun)
        onBegun();
}

void OperationGuard::unlock() {
    const bool ends = operations_ == 1;
    if (operations_ > 0)
        --operations_;
    busy_ = operations_ > 0;
    if (ends && onEnded)
        onEnded();
}

void OperationGuard::yield() {
    if (yielding_)
        return;
    yielding_ = true;
    // What happens in between has to find things as it left them: nothing is begun here.
    const ActionsRefused refused(*this);
    wxTheApp->Yield(true);
    yielding_ = false;
}

bool OperationGuard::concernsGuarded(const wxEvent& event) const {
    if (const auto* timer = dynamic_cast<const wxTimerEvent*>(&event)) {
        const auto* owner = dynamic_cast<const wxWindow*>(timer->GetTimer().GetOwner());
        return owner && wxGetTopLevelParent(const_cast<wxWindow*>(owner)) == guarded_;
    }
    auto* window = dynamic_cast<wxWindow*>(event.GetEventObject());
    if (!window) // a menu's events name the menu
        return event.GetEventType() == wxEVT_MENU;
    return wxGetTopLevelParent(window) == guarded_;
}

int OperationGuard::FilterEvent(wxEvent& event) {
    if (!isLocked() || !guarded_)
        return Event_Skip;
    if (auto* close = dynamic_cast<wxCloseEvent*>(&event)) {
        if (event.GetEventObject() != guarded_ || !close->CanVeto())
            return Event_Skip;
        close->Veto();
        return Event_Processed;
    }
    if (!isOperatorAction(event) || isNotice(event) || !concernsGuarded(event))
        return Event_Skip;
    return Event_Processed;
}

} // namespace vantrel
