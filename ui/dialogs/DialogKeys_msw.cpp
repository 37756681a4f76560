#include "ui/dialogs/DialogKeys.h"

#include <utility>

#include <wx/event.h>
#include <wx/window.h>

namespace vantrel {

void onEnter(wxWindow& control, std::function<void()> action) {
    control.Bind(wxEVT_CHAR_HOOK, [action = std::move(action)](wxKeyEvent& event) {
        if (event.GetKeyCode() == WXK_RETURN || event.GetKeyCode() == WXK_NUMPAD_ENTER)
            action();
        else
            event.Skip();
    });
}

} // namespace vantrel
