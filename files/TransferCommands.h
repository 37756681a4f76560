#pragma once

namespace vantrel {

struct ApplicationState;
class MessageTable;
class OperatorDialog;
class PaneWindow;
class Panes;
class ProgressPanel;
class Snappy;
class TransferTable;

/// What the transfer commands work with; everything is borrowed and outlives them.
struct TransferServices {
    ApplicationState& state;
    Snappy& session;
    Panes& panes;
    PaneWindow& window;
    const TransferTable& table;
    const MessageTable& messages;
    ProgressPanel& progress;
    OperatorDialog& dialog;
};

/// The commands on the selected items of a pane. Each locks the window while it runs, reports its
/// failures itself, refreshes what it changed and returns true when nothing failed.
class TransferCommands {
  public:
    explicit TransferCommands(const TransferServices& services) : with_(services) {}

    /// Selected PC files into the controller, through the session's job list.
    bool sendCopy();
    /// Selected controller files into the PC folder, through the session's job list.
    bool receiveCopy();

  private:
    TransferServices with_;
};

} // namespace vantrel
