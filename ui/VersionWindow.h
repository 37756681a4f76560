#pragma once

#include "ui/dialogs/ModalWatch.h"
#include "ui/dialogs/frmVers.h"
#include "ui/look/WindowHolder.h"

class wxDialog;
class wxWindow;

namespace vantrel {

struct ApplicationState;
class MessageTable;

/// The one `frmVers` of the program: shown by the start without waiting, opened modally by the
/// menu.
class VersionWindow {
  public:
    VersionWindow(const MessageTable& messages, const ApplicationState& state);

    void load();
    /// Does nothing when it is gone already.
    void show();
    /// Over its parent, until the operator closes it.
    void open(wxWindow& parent);
    /// It came before the main window, which may have taken the front since.
    void bringBefore(wxWindow& main);
    void unload();

  private:
    void closeFor(const wxDialog& dialog);

    const MessageTable& messages_;
    const ApplicationState& state_;
    WindowHolder<frmVers> window_;
    ModalWatch watch_;
};

} // namespace vantrel
