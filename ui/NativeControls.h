#pragma once

#include <functional>
#include <string>

class wxChoice;
class wxFrame;
class wxString;
class wxTextCtrl;
class wxTreeCtrl;

namespace vantrel {

/// An entry of a window's menu bar that is a command itself. The toolkit puts menus only into a
/// menu bar, the systems commands as well.
class MenuBarEntry {
  public:
    /// At this place from 0 in the menu bar, which the window has already and keeps.
    MenuBarEntry(wxFrame& window, int place, std::function<void()> onChosen);
    ~MenuBarEntry();
    MenuBarEntry(const MenuBarEntry&) = delete;
    MenuBarEntry& operator=(const MenuBarEntry&) = delete;

    /// `caption` with "&" before its mnemonic.
    void setCaption(const wxString& caption);
    void enable(bool enabled);

  private:
    wxFrame& window_;
    int place_;
    std::function<void()> onChosen_;
    void* entry_ = nullptr; ///< the system's own
};

/// Has a tree tell of every release of the mouse; the system's own keeps those from the program by
/// which it finds out whether a drag begins.
void tellReleases(wxTreeCtrl& tree);

/// Adds UTF-8 text at the end of a multi-line control and leaves caret, selection and what is
/// scrolled into view as they are, which the toolkit's own way does not.
void appendQuietly(wxTextCtrl& control, const std::string& text);

/// Makes keys and the wheel open the list of a closed choice in place of changing it: passing by an
/// entry is no choice, only a press on it or Enter in the open list is.
void chooseInOpenListOnly(wxChoice& choice);

/// Has a choice ask for its menu when the right mouse button is pressed on it, of which the toolkit
/// hears nothing in a port that builds a choice of several windows.
void tellRightPresses(wxChoice& choice);

/// Has the open list of a choice be as wide as its entries, where the system would have it be as
/// narrow as the closed one. To be called again when they change.
void showWholeEntries(wxChoice& choice);

/// Shows the list of a choice.
void openList(wxChoice& choice);

/// Whether that list is shown now. On some systems the choice gets the keys meant for it.
bool isListOpen(const wxChoice& choice);

} // namespace vantrel
