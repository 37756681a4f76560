#pragma once

#include <wx/dialog.h>

namespace vantrel {

/// Never shown: the communication library wants the handle of a window for its notifications in the
/// Ethernet mode. Loaded on first use.
class frmDumy : public wxDialog {
  public:
    frmDumy();

    /// The system's own handle of the window.
    void* handle() const;
    /// The program ends with its main window, not with this one.
    bool ShouldPreventAppExit() const override { return false; }
};

} // namespace vantrel
