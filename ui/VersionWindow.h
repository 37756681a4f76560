#pragma once

#include "ui/dialogs/frmVers.h"
#include "ui/look/WindowHolder.h"

#include <functional>
#include <utility>

#include <wx/modalhook.h>

class wxDialog;
class wxWindow;

namespace vantrel {

struct ApplicationState;
class MessageTable;

/// Tells of each modal dialog, message boxes included, before it opens.
class ModalWatch : public wxModalDialogHook {
  public:
    explicit ModalWatch(std::function<void(wxDialog&)> onOpening)
        : onOpening_(std::move(onOpening)) {
        Register();
    }
    ~ModalWatch() override { Unregister(); }

  private:
    int Enter(wxDialog* dialog) override {
        onOpening_(*dialog);
        return wxID_NONE;
    }
    void Exit(wxDialog*) override {}

    std::function<void(wxDialog&)> onOpening_;
};

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
