#pragma once

#include <functional>
#include <string>

#include <wx/dialog.h>

namespace vantrel {

struct ApplicationState;
class MessageTable;

/// The message shown while the program starts. It is modeless and destroys itself when the operator
/// goes elsewhere, so hold it by a WindowHolder.
class FrmMessage : public wxDialog {
  public:
    /// `body` stands under the heading; an empty one leaves no room for itself.
    FrmMessage(const std::string& body, const MessageTable& messages,
               const ApplicationState& state);

    /// Shows the window; `yield` runs pending events once and then paints.
    void showPainted(const std::function<void()>& yield);

    /// The program ends with its main window, not with this one.
    bool ShouldPreventAppExit() const override { return false; }

  private:
    void buildControls(const std::string& body, const MessageTable& messages);
};

} // namespace vantrel
