#include "ui/NativeControls.h"

#include <wx/choice.h>

namespace vantrel {

namespace {

/// Arrow and page keys change a closed choice on every system, letters on some.
bool wouldChange(const wxKeyEvent& event) {
    if (event.AltDown() || event.ControlDown())
        return event.AltDown() && event.GetKeyCode() == WXK_DOWN;
    switch (event.GetKeyCode()) {
    case WXK_UP:
    case WXK_DOWN:
    case WXK_LEFT:
    case WXK_RIGHT:
    case WXK_HOME:
    case WXK_END:
    case WXK_PAGEUP:
    case WXK_PAGEDOWN:
    case WXK_NUMPAD_UP:
    case WXK_NUMPAD_DOWN:
    case WXK_NUMPAD_HOME:
    case WXK_NUMPAD_END:
    case WXK_NUMPAD_PAGEUP:
    case WXK_NUMPAD_PAGEDOWN:
    case WXK_F4:
        return true;
    default:
        return event.GetUnicodeKey() >= WXK_SPACE && event.GetUnicodeKey() != WXK_DELETE;
    }
}

} // namespace

void chooseInOpenListOnly(wxChoice& choice) {
    choice.Bind(wxEVT_KEY_DOWN, [&choice](wxKeyEvent& event) {
        if (wouldChange(event) && !isListOpen(choice))
            openList(choice);
        else
            event.Skip();
    });
    choice.Bind(wxEVT_MOUSEWHEEL,
                [&choice](wxMouseEvent& event) { event.Skip(isListOpen(choice)); });
}

} // namespace vantrel
