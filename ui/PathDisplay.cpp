#include "ui/PathDisplay.h"

#include "ui/look/IconSet.h"
#include "ui/look/SystemLook.h"

namespace vantrel {

PathDisplay::PathDisplay(wxWindow* parent, const wxString& name)
    : wxTreeCtrl(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize,
                 wxTR_NO_BUTTONS | wxTR_NO_LINES | wxTR_FULL_ROW_HIGHLIGHT | wxBORDER_THEME,
                 wxDefaultValidator, name) {
    SetIndent(0);
    SetSpacing(FromDIP(2));
    SetImages(folderImages());
    hideScrollBars(*this);
    // A tree shows the tip of the item under the pointer and not its own.
    Bind(wxEVT_TREE_ITEM_GETTOOLTIP,
         [this](wxTreeEvent& event) { event.SetToolTip(GetToolTipText()); });
}

wxSize PathDisplay::DoGetBestSize() const {
    return oneLineSize(*this, wxTreeCtrl::DoGetBestSize());
}

void PathDisplay::showFolder(const wxString& nodeText, std::string_view image,
                             const wxString& fullPath) {
    DeleteAllItems();
    AddRoot(nodeText, folderImage(image));
    UnselectAll();
    SetToolTip(fullPath);
}

wxString PathDisplay::nodeText() const {
    const auto root = GetRootItem();
    return root.IsOk() ? GetItemText(root) : wxString();
}

} // namespace vantrel
