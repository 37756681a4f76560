#pragma once

#include "app/settings/FolderChoice.h"

#include <functional>
#include <span>
#include <string>
#include <vector>

#include <wx/listctrl.h>
#include <wx/panel.h>

class wxChoice;
class wxStaticText;
class wxTreeCtrl;
class wxTreeEvent;

namespace vantrel {

/// A plain list of file names. It asks for visible rows only, so that a folder of 100,000 files
/// opens at once.
class FileNameList : public wxListView {
  public:
    FileNameList(wxWindow* parent, const wxString& name);

    void show(const std::vector<std::string>& names);

  private:
    wxString OnGetItemText(long item, long column) const override;
    void fitColumn();

    std::vector<std::string> names_;
};

/// `Drive1`, `Dir1`, `File1` and `lblDirName`: the choice of a folder. The files are there to find
/// one's way and choose nothing.
class FolderChoicePanel : public wxPanel {
  public:
    FolderChoicePanel(wxWindow* parent, FolderChoiceSource sources, const std::string& caption);

    /// Called with the folder that the operator chose.
    std::function<void(const std::string& folder)> onChosen;

    /// Shows a stored folder; that is no choice of the operator.
    void show(const std::string& folder);
    void focusDrives();
    void focusFolders();

  private:
    wxSizer* buildControls(const std::string& caption);
    void bindEvents();
    void rebuildTree();
    void expanding(wxTreeEvent& event);
    void chosen();
    void refresh();

    FolderChoice choice_;
    wxChoice* Drive1_ = nullptr;
    wxTreeCtrl* Dir1_ = nullptr;
    FileNameList* File1_ = nullptr;
    wxStaticText* lblDirName_ = nullptr;
    bool filling_ = false;
};

} // namespace vantrel
