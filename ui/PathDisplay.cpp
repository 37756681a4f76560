#include "ui/PathDisplay.h"

#include "ui/IconSet.h"

namespace vantrel {

namespace {
constexpr int iconSize = 16;
constexpr int driveImage = 0;
constexpr int openImage = 1;
} // namespace

PathDisplay::PathDisplay(wxWindow* parent, const wxString& name)
    : wxTreeCtrl(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize,
                 wxTR_NO_BUTTONS | wxTR_NO_LINES | wxTR_FULL_ROW_HIGHLIGHT | wxBORDER_THEME,
                 wxDefaultValidator, name) {
    SetIndent(0);
    wxVector<wxBitmapBundle> images;
    images.push_back(icon("drive", wxSize(iconSize, iconSize)));
    images.push_back(icon("open", wxSize(iconSize, iconSize)));
    SetImages(images);
    // One line is all there ever is; scroll bars would cover it.
    ShowScrollbars(wxSHOW_SB_NEVER, wxSHOW_SB_NEVER);
}

void PathDisplay::showFolder(const wxString& nodeText, std::string_view image,
                             const wxString& fullPath) {
    DeleteAllItems();
    AddRoot(nodeText, image == "drive" ? driveImage : openImage);
    UnselectAll();
    SetToolTip(fullPath);
}

wxString PathDisplay::nodeText() const {
    const auto root = GetRootItem();
    return root.IsOk() ? GetItemText(root) : wxString();
}

} // namespace vantrel
