#include "ui/dialogs/DialogBasics.h"

#include <utility>

#include <wx/choice.h>
#include <wx/event.h>
#include <wx/msw/private.h>
#include <wx/window.h>

namespace vantrel {
namespace {

bool isEnter(const wxKeyEvent& key) {
    return key.GetKeyCode() == WXK_RETURN || key.GetKeyCode() == WXK_NUMPAD_ENTER;
}

} // namespace

void onEnter(wxWindow& control, std::function<void()> action) {
    control.Bind(wxEVT_CHAR_HOOK, [&control, action = std::move(action)](wxKeyEvent& event) {
        // The system tells of a key from inside a hook, where no other window may open.
        if (isEnter(event))
            control.CallAfter(action);
        else
            event.Skip();
    });
}

void keepEnter(wxChoice& list) {
    list.Bind(wxEVT_CHAR_HOOK, [&list](wxKeyEvent& event) {
        const bool isOpen = ::SendMessageW(GetHwndOf(&list), CB_GETDROPPEDSTATE, 0, 0) != 0;
        event.Skip(isOpen || !isEnter(event));
    });
}

} // namespace vantrel
