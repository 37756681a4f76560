#pragma once

#include <wx/dialog.h>

class wxListView;

namespace vantrel {

class ConnectionTest;
class MessageTable;
struct ApplicationState;

/// Runs a test of a connection as soon as it is open, and shows each step with what it came to.
class frmConnectionTest : public wxDialog {
  public:
    frmConnectionTest(wxWindow* parent, ConnectionTest& test, const MessageTable& messages,
                      const ApplicationState& state);

  private:
    void buildList();
    wxSizer* buildButtons();
    void showSteps();
    void fitColumns();
    void copy() const;

    ConnectionTest& test_;
    const MessageTable& messages_;
    wxListView* lsvSteps_ = nullptr;
};

} // namespace vantrel
