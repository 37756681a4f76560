#pragma once

namespace vantrel {

struct ApplicationState;
class MessageTable;
class OperatorTalk;
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
    OperatorTalk& talk;
};

} // namespace vantrel
