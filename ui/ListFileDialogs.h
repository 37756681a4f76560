#pragma once

#include "app/ListFileWindow.h"

class wxWindow;

namespace vantrel {

struct ApplicationState;
class MessageBoxes;
class MessageTable;
class Snappy;

/// Opens `frmListFile` over a window, anew for each list; everything is borrowed.
class ListFileDialogs : public ListFileWindow {
  public:
    ListFileDialogs(wxWindow& parent, ApplicationState& state, Snappy& session, MessageBoxes& boxes,
                    const MessageTable& messages)
        : parent_(parent), state_(state), session_(session), boxes_(boxes), messages_(messages) {}

    bool readList(std::string_view mode) override;

  private:
    wxWindow& parent_;
    ApplicationState& state_;
    Snappy& session_;
    MessageBoxes& boxes_;
    const MessageTable& messages_;
};

} // namespace vantrel
