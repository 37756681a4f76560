#include "ui/dialogs/DialogBasics.h"

#include <utility>

#include <wx/event.h>
#include <wx/window.h>

namespace vantrel {

void onEnter(wxWindow& control, std::function<void()> action) {
    control.Bind(wxEVT_CHAR_HOOK, [&control, action = std::move(action)](wxKeyEvent& event) {
        // The system tells of a key from inside a hook, where no other window may open.
        if (event.GetKeyCode() == WXK_RETURN || event.GetKeyCode() == WXK_NUMPAD_ENTER)
            control.CallAfter(action);
        else
            event.Skip();
    });
}

} // namespace vantrel
