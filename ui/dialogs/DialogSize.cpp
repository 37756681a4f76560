#include "ui/dialogs/DialogSize.h"

#include <wx/sizer.h>
#include <wx/toplevel.h>

namespace vantrel {

void fitToContents(wxTopLevelWindow& window) {
    // A limit from larger contents must not keep the window large.
    window.SetMinSize(wxDefaultSize);
    // The smallest size is set as well, not only the size: on X11 the window manager's frame is
    // known after the window is shown, and its height would be taken off the contents.
    window.GetSizer()->SetSizeHints(&window);
}

} // namespace vantrel
