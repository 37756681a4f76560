#include "ui/dialogs/DialogParent.h"

#include "app/ScreenPlace.h"

#include <wx/app.h>
#include <wx/dialog.h>
#include <wx/display.h>
#include <wx/frame.h>

namespace vantrel {
namespace {

wxWindow* innermostModalWindow() {
    for (auto* node = wxTopLevelWindows.GetLast(); node; node = node->GetPrevious()) {
        auto* const dialog = dynamic_cast<wxDialog*>(node->GetData());
        if (dialog && dialog->IsModal() && dialog->IsShown() && !dialog->IsBeingDeleted())
            return dialog;
    }
    return nullptr;
}

wxWindow* shownMainWindow() {
    auto* const main = dynamic_cast<wxFrame*>(wxTheApp->GetTopWindow());
    return main && main->IsShown() && !main->IsBeingDeleted() ? main : nullptr;
}

ScreenRect rectangleOf(const wxRect& rectangle) {
    return {rectangle.x, rectangle.y, rectangle.width, rectangle.height};
}

} // namespace

wxWindow* dialogParent() {
    wxWindow* const modal = innermostModalWindow();
    return modal ? modal : shownMainWindow();
}

void centreOverMainWindow(wxTopLevelWindow& window) {
    const wxWindow* const main = shownMainWindow();
    if (!main) {
        window.CentreOnScreen();
        return;
    }
    const auto size = window.GetSize();
    const auto place = centredOver(rectangleOf(main->GetRect()), size.x, size.y,
                                   rectangleOf(wxDisplay(main).GetClientArea()));
    window.SetPosition(wxPoint(place.left, place.top));
}

} // namespace vantrel
