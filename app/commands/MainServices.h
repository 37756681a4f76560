#pragma once

#include "base/ApplicationState.h"
#include "base/Result.h"

#include <array>
#include <cstdint>
#include <functional>
#include <string>

namespace vantrel {

class FilePrinter;
class MessageTable;
class OperatorTalk;
class PCFolder;
class PaneWindow;
class Panes;
class ResultLog;
class Snappy;
class TransferCommands;
class ViewerPane;
struct ApplicationState;
struct CommandInput;
struct ModeLook;
struct PlaceMark;

/// The main window as its commands and its start see it: it shows what it is told and knows no
/// rule.
class MainWindowView {
  public:
    virtual ~MainWindowView() = default;

    /// The caption font and every caption of the window, counts included.
    virtual void applyFont() = 0;
    virtual void applyCaptions() = 0;
    /// Twips; of the window and of the first three columns of `lsvPC`, the last number unused.
    virtual void place(const std::array<std::int32_t, 8>& windowPositions) = 0;

    /// Menus and buttons offer what can do its work now.
    virtual void showStates(const CommandInput& input) = 0;
    virtual void showMode(const ModeLook& look) = 0;
    virtual void showActiveSide(ActiveSide side) = 0;
    virtual void showSerialLine(const std::string& port, const std::string& format) = 0;
    virtual void showAddress(const std::string& address) = 0;
    /// Beside the robot box, for the modes that show it.
    virtual void showRobotMark(const PlaceMark& mark) = 0;
    virtual void showFolder(const std::string& path) = 0;
    virtual void showView(ActiveSide side, std::int16_t displayType) = 0;

    virtual void selectAll(ActiveSide side) = 0;
    /// Lets the operator type what the names of a pane shall hold; what stands there tells it to
    /// `MainCommands::filterNames`.
    virtual void openQuickFilter(ActiveSide side) = 0;
    /// Hides that line with what stands in it, and tells nobody.
    virtual void closeQuickFilter(ActiveSide side) = 0;
    virtual void closeWindow() = 0;
};

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
    const ResultLog& results;
};

} // namespace vantrel
