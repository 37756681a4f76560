#pragma once

#include <wx/dialog.h>

class wxChoice;
class wxTextCtrl;

namespace vantrel {

class ColourSwatch;
class MessageTable;
class RobotMarkDraft;
struct ApplicationState;

/// Colour and label of a robot, in a draft that holds after OK.
class frmRobotMark : public wxDialog {
  public:
    frmRobotMark(wxWindow* parent, RobotMarkDraft& mark, const MessageTable& messages,
                 const ApplicationState& state);

  private:
    wxSizer* buildFields();
    wxSizer* buildButtons();
    void showColour();
    void confirm();

    RobotMarkDraft& mark_;
    const MessageTable& messages_;
    wxChoice* cmbColour_ = nullptr;
    ColourSwatch* swatch_ = nullptr;
    wxTextCtrl* txtLabel_ = nullptr;
};

} // namespace vantrel
