#include "ui/dialogs/DialogBasics.h"

#include "app/window/ScreenGeometry.h"
#include "ui/look/SystemLook.h"

#include <algorithm>
#include <vector>

#include <wx/app.h>
#include <wx/button.h>
#include <wx/dialog.h>
#include <wx/display.h>
#include <wx/event.h>
#include <wx/frame.h>
#include <wx/sizer.h>
#include <wx/textctrl.h>
#include <wx/toplevel.h>
#include <wx/window.h>

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

bool isDialogOpen() {
    return std::ranges::any_of(wxTopLevelWindows, [](const wxWindow* window) {
        const auto* const dialog = dynamic_cast<const wxDialog*>(window);
        return dialog && dialog->IsModal();
    });
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

void fitToContents(wxTopLevelWindow& window) {
    // A limit from larger contents must not keep the window large.
    window.SetMinSize(wxDefaultSize);
    // The smallest size is set as well, not only the size: on X11 the window manager's frame is
    // known after the window is shown, and its height would be taken off the contents.
    window.GetSizer()->SetSizeHints(&window);
}

wxSizer* buttonRow(std::span<wxButton* const> buttons) {
    constexpr int gap = 8; // device-independent pixels
    std::vector<wxButton*> ordered(buttons.begin(), buttons.end());
    if (goesOnAtTheRight())
        std::ranges::reverse(ordered);
    auto* const row = new wxBoxSizer(wxHORIZONTAL);
    for (std::size_t index = 0; index < ordered.size(); ++index) {
        wxButton* const button = ordered[index];
        row->Add(button, wxSizerFlags().Border(wxLEFT, index == 0 ? 0 : button->FromDIP(gap)));
        if (index > 0)
            button->MoveAfterInTabOrder(ordered[index - 1]);
    }
    return row;
}

void makeRoomFor(wxTextCtrl& field, const char* longestText) {
    const int text = field.GetTextExtent(longestText).x + field.GetCharWidth();
    // A field that is not shown yet may still ask for the height of its last font.
    constexpr int marginsOfLine = 8; // device-independent pixels
    const int line = field.GetCharHeight() + field.FromDIP(marginsOfLine);
    field.SetMinSize(
        wxSize(field.GetSizeFromTextSize(text).x, std::max(field.GetBestSize().y, line)));
}

void swallowF1(wxWindow& window) {
    window.Bind(wxEVT_CHAR_HOOK, [](wxKeyEvent& event) {
        if (event.GetKeyCode() != WXK_F1)
            event.Skip();
    });
    // Some systems turn the key into a request for help before a window sees it.
    window.Bind(wxEVT_HELP, [](wxHelpEvent&) {});
}

} // namespace vantrel
