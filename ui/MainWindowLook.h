#pragma once

#include "base/ApplicationState.h"

namespace vantrel {

class MessageTable;
struct CommandInput;
struct MainWindowControls;
struct ModeLook;
struct PlaceMark;

/// Gives every control of the main window its caption, tool tip and column titles; the menus have
/// their own.
void captionControls(const MainWindowControls& controls, const MessageTable& messages);

/// Dims and presses the tool bars' buttons, and dims all that a running operation locks; the menus
/// have their own states.
void showCommandStates(const MainWindowControls& controls, const CommandInput& input);

/// Shows the heading of the serial line or of the robot, and colours the highlights. What was
/// placed while it was hidden is to be placed again.
void showTransferMode(const MainWindowControls& controls, const ModeLook& look);

/// Shows the mark beside the robot box, if that is shown and there is one.
void showMark(const MainWindowControls& controls, const PlaceMark& mark);

/// Turns the arrow from the active pane to the other one, and highlights the active one only.
void showActivePane(const MainWindowControls& controls, ActiveSide side);

} // namespace vantrel
