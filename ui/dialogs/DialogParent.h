#pragma once

class wxTopLevelWindow;
class wxWindow;

namespace vantrel {

/// The window that a new modal window belongs to: the innermost modal window, else the main window
/// if it is on the screen, else none. Windows that come and go by themselves (progress, start
/// message) never own another: their end would take it along.
wxWindow* dialogParent();

/// Places a window in the middle of the main window, kept on its screen; without a main window in
/// the middle of the screen.
void centreOverMainWindow(wxTopLevelWindow& window);

} // namespace vantrel
