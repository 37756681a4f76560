#pragma once

#include <functional>
#include <span>

class wxButton;
class wxChoice;
class wxSizer;
class wxTextCtrl;
class wxTopLevelWindow;
class wxWindow;

namespace vantrel {

/// The window that a new modal window belongs to: the innermost modal window, else the main window
/// if it is on the screen, else none. Windows that come and go by themselves (progress, start
/// message) never own another: their end would take it along.
wxWindow* dialogParent();

/// Whether a dialog of the toolkit's waits for an answer.
bool isDialogOpen();

/// Places a window in the middle of the main window, kept on its screen; without a main window in
/// the middle of the screen.
void centreOverMainWindow(wxTopLevelWindow& window);

/// Makes a window as large as its contents ask for, and no smaller from then on.
void fitToContents(wxTopLevelWindow& window);

/// A row of buttons, given with the one that goes on first, in the order of the system's own boxes;
/// `Tab` follows it.
wxSizer* buttonRow(std::span<wxButton* const> buttons);

/// Makes a field as large as its longest text asks for in its font.
void makeRoomFor(wxTextCtrl& field, const char* longestText);

/// Swallows F1 in a window, so that no help opens from it.
void swallowF1(wxWindow& window);

/// What Enter does in a list or a tree, and all that it does there: neither the control's own
/// meaning of the key nor the dialog's default button has a part in it. Text boxes do without: they
/// are made with wxTE_PROCESS_ENTER, since Enter may belong to an input method there.
void onEnter(wxWindow& control, std::function<void()> action);

/// Keeps Enter in a drop-down list from the dialog's default button. In the open list it chooses
/// the entry, and in the closed one it does what the system has it do there, if anything.
void keepEnter(wxChoice& list);

} // namespace vantrel
