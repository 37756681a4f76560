#pragma once

#include "app/FolderChoice.h"

#include <functional>
#include <string>

#include <wx/panel.h>

class wxChoice;
class wxStaticText;
class wxTreeCtrl;
class wxTreeEvent;

namespace vantrel {

class FileNameList;

/// `Drive1`, `Dir1`, `File1` and `lblDirName`: the choice of a folder. The files are there to find
/// one's way and choose nothing.
class FolderChoicePanel : public wxPanel {
  public:
    FolderChoicePanel(wxWindow* parent, FolderSources sources, const std::string& caption);

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
