#include "ui/dialogs/DialogKeys.h"

#include <wx/event.h>
#include <wx/window.h>

namespace vantrel {

void swallowF1(wxWindow& window) {
    window.Bind(wxEVT_CHAR_HOOK, [](wxKeyEvent& event) {
        if (event.GetKeyCode() != WXK_F1)
            event.Skip();
    });
    // Some systems turn the key into a request for help before a window sees it.
    window.Bind(wxEVT_HELP, [](wxHelpEvent&) {});
}

} // namespace vantrel
