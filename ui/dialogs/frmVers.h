#pragma once

#include <string>

#include <wx/dialog.h>
#include <wx/timer.h>

namespace vantrel {

struct ApplicationState;
class MessageTable;

/// The version window. The start routine loads it hidden and later makes it visible without
/// waiting; the menu opens it modally.
class frmVers : public wxDialog {
  public:
    /// `version` is shown after "Ver".
    frmVers(wxWindow* parent, const std::string& version, const MessageTable& messages,
            const ApplicationState& state);

    /// Opens the window modally, also when it is visible already, in the language now in force.
    void openModal();

    /// The program ends with its main window, not with this one.
    bool ShouldPreventAppExit() const override { return false; }

  private:
    wxSizer* buildLabels(const std::string& version);
    void buildControls(const std::string& version);
    void applyCaptions();
    void unload();

    const MessageTable& messages_;
    const ApplicationState& state_;

    /// Would close the window. It is given the interval 0, which means never, and so it is not
    /// started at all: a started timer of ours with that interval would fire at once.
    wxTimer Timer1_;
};

} // namespace vantrel
