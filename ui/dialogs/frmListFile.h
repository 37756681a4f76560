#pragma once

#include <string>

#include <wx/dialog.h>

class wxButton;
class wxListBox;
class wxTextCtrl;

namespace vantrel {

struct ApplicationState;
class ListFileDraft;

/// Asks for the name of a job or variable list file; what it means is in the draft.
class frmListFile : public wxDialog {
  public:
    frmListFile(wxWindow* parent, ListFileDraft& draft, const ApplicationState& state);

  private:
    wxSizer* buildTexts();
    wxSizer* buildButtons();
    void bindEvents();
    void take(const std::string& name);
    void confirm();
    void refresh();

    ListFileDraft& draft_;
    wxTextCtrl* txtFile_ = nullptr;
    wxListBox* lstOffered_ = nullptr; ///< null where the folder has no list file
    wxButton* cmdOK_ = nullptr;
};

} // namespace vantrel
