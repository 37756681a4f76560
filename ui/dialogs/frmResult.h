#pragma once

#include "files/CommandResult.h"

#include <wx/dialog.h>

class wxButton;
class wxListView;

namespace vantrel {

class MessageTable;
class ResultCommands;
struct ApplicationState;

/// What the last command came to, file by file. Closes with wxID_RETRY when the operator wants to
/// try again what is left.
class frmResult : public wxDialog {
  public:
    /// The last command has ended; its result is the one that is shown as long as this is open.
    frmResult(wxWindow* parent, const ResultCommands& results, const MessageTable& messages,
              const ApplicationState& state);

  private:
    wxSizer* buildHead();
    void buildList();
    wxSizer* buildButtons();
    void fitColumns();
    void save();

    const ResultCommands& results_;
    const CommandResult result_;
    const MessageTable& messages_;
    wxListView* lsvResult_ = nullptr;
};

} // namespace vantrel
