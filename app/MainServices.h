#pragma once

#include "base/Result.h"

#include <functional>
#include <string>

namespace vantrel {

struct ApplicationState;
class FilePrinter;
class MainWindowView;
class MessageTable;
class OperatorTalk;
class PCFolder;
class PaneWindow;
class Panes;
class Snappy;
class TransferCommands;
class ViewerPane;

/// What the main window's commands work with; everything is borrowed and outlives them.
struct MainServices {
    ApplicationState& state;
    Snappy& session;
    Panes& panes;
    TransferCommands& transfers;
    const MessageTable& messages;
    OperatorTalk& talk;
    PaneWindow& window;
    MainWindowView& view;
    PCFolder& folder;
    std::function<Outcome(const std::string& path)> editTextFile; ///< the system's text editor
    ViewerPane& viewerPane;
    FilePrinter& printer;
};

} // namespace vantrel
