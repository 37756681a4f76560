#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

class wxDialog;
class wxFrame;
class wxMenu;
class wxRect;
class wxTopLevelWindow;
class wxWindow;

// What tests with windows ask of the system below the toolkit.

namespace vantrel::tests {

/// Only one window can have the keyboard: programs that test windows on the same display take
/// turns, however many tests run in parallel.
class DisplayLock {
  public:
    DisplayLock();
    ~DisplayLock();
    DisplayLock(const DisplayLock&) = delete;
    DisplayLock& operator=(const DisplayLock&) = delete;

  private:
    std::intptr_t handle_;
};

/// What the system's own entry into a program does before the toolkit is started.
void prepareToolkit();

/// Has the system take note of all that it was told, real keys and presses of the mouse above all.
void awaitDisplay();

/// Runs events until the toolkit has done all that a key press makes it do.
void outwaitToolkit();

/// Paints everything as the toolkit does when it is given all the time that it wants.
void paintInGoodTime();

/// What the screen shows in this area at this moment, row by row: red, green and blue, a byte each.
/// What lies outside the screen is taken off the area.
std::vector<std::uint32_t> pixelsOnScreen(wxRect& area);

/// How many windows with frames are to be seen, whosever they are.
int windowsOnScreen();

/// What the system sends when the operator presses the mouse on a window, or closes it by its
/// frame, without the time that this takes.
void sendPress(wxWindow& window);
void sendClosing(wxTopLevelWindow& window);

/// A key goes down and up again, as on the keyboard.
void strikeKey(int keyCode, int modifiers);

/// Whether a modal dialog is on the screen and waits for its answer, and its answer by a button.
/// Some systems have message boxes of their own, of which the toolkit knows nothing more.
bool isWaiting(const wxDialog& dialog);
void answer(wxDialog& dialog, int button);
/// Leaves a dialog by Esc; a box of the system's is answered Cancel, else No, else OK. False
/// when it stays.
bool leave(wxDialog& dialog);

/// The window that has the keyboard in this one, as the system has it; null for none of the
/// toolkit's.
const wxWindow* keyboardIn(const wxTopLevelWindow& window);

/// Whether the system keeps the window before its owner.
bool staysBefore(const wxWindow& window, const wxWindow& owner);

/// The entries of a window's menu bar, those too that the toolkit does not know, with "&" before
/// their keys.
std::vector<std::string> menuBarEntries(const wxFrame& window);
/// Whether an entry opens a menu; else it is a command, which can be chosen.
bool isMenu(const wxFrame& window, std::size_t entry);
void chooseCommand(wxFrame& window, std::size_t entry);

/// Closes the menu that is open.
void closeOpenMenu(wxMenu& menu);

/// Cases that cannot be tried here, as patterns of a filter.
struct LeftOut {
    const char* reason;
    std::vector<std::string> cases;
};
std::vector<LeftOut> casesLeftOut();

} // namespace vantrel::tests
