#pragma once

#include <string_view>

#include <wx/treectrl.h>

namespace vantrel {

/// `trvFolderName`: a tree with a single node that names the current folder.
class PathDisplay : public wxTreeCtrl {
  public:
    PathDisplay(wxWindow* parent, const wxString& name);

    /// `image` is "drive" or "open"; the full path becomes the tool tip.
    void showFolder(const wxString& nodeText, std::string_view image, const wxString& fullPath);
    wxString nodeText() const;

  protected:
    wxSize DoGetBestSize() const override;
};

} // namespace vantrel
