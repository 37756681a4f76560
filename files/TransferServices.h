#pragma once

#include "base/Result.h"

#include <functional>
#include <string>
#include <vector>

namespace vantrel {

class MessageTable;
class OperatorTalk;
class PaneWindow;
class Panes;
class ProgressPanel;
class ResultLog;
class Snappy;
class TransferTable;
struct ApplicationState;

/// Moves a file, by its path, to where the operator can get it back from.
using MoveToWasteBin = std::function<Outcome(const std::string& path)>;

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
    ResultLog& results;
    /// Where deleted files can be got back from; null where there is no such place.
    const MoveToWasteBin* moveToWasteBin = nullptr;
};

/// What a transfer command comes to. A side is touched when something there may have changed; only
/// touched sides are read anew at the end.
struct CommandOutcome {
    bool succeeded = true;
    bool pcTouched = false;
    bool controllerTouched = false;
    bool cancelled = false; ///< by the operator
    /// What the controller has no more, by the entries of its listing.
    std::vector<std::string> goneFromController = {};
};

/// An item of a pane when a command began.
struct SelectedItem {
    std::string name;
    bool isFolder = false;
};

} // namespace vantrel
