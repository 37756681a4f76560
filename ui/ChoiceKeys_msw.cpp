#include "ui/ChoiceKeys.h"

#include <wx/choice.h>
#include <wx/msw/private.h>

namespace vantrel {

void openList(wxChoice& choice) {
    if (choice.IsEnabled())
        ::SendMessageW(GetHwndOf(&choice), CB_SHOWDROPDOWN, TRUE, 0);
}

bool isListOpen(const wxChoice& choice) {
    return ::SendMessageW(GetHwndOf(&choice), CB_GETDROPPEDSTATE, 0, 0) != 0;
}

} // namespace vantrel
