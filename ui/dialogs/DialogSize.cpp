#include "ui/dialogs/DialogSize.h"

#include <wx/sizer.h>
#include <wx/textctrl.h>
#include <wx/toplevel.h>

namespace vantrel {

void fitToContents(wxTopLevelWindow& window) {
    // A limit from larger contents must not keep the window large.
    window.SetMinSize(wxDefaultSize);
    // The smallest size is set as well, not only the size: on X11 the window manager's frame is
    // known after the window is shown, and its height would be taken off the contents.
    window.GetSizer()->SetSizeHints(&window);
}

void makeRoomFor(wxTextCtrl& field, const char* longestText) {
    const int text = field.GetTextExtent(longestText).x + field.GetCharWidth();
    field.SetMinSize(wxSize(field.GetSizeFromTextSize(text).x, -1));
}

} // namespace vantrel
