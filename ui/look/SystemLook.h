#pragma once

#include <wx/defs.h>

class wxBitmapBundle;
class wxSize;
class wxString;
class wxTreeCtrl;
class wxWindow;

namespace vantrel {

/// To be called before the toolkit starts: keeps it from loading what this program has no use for.
void prepareSystem();

/// Adjusts the system's look for the whole program, once, before the first window: the main window
/// is laid out for controls as dense as on the PCs that stand beside robots.
void applySystemLook();

/// The picture that the system's own boxes show beside a question.
wxBitmapBundle questionPicture();

/// How much larger than usual the operator has texts shown, beyond the scale of the whole desktop;
/// 1 for not at all.
double textScale();

/// Whether this system's own boxes have the button that goes on at the right end of their row, in
/// place of the left.
bool goesOnAtTheRight();

/// Lets a button be as small as its image, where the system would give it a margin.
void allowNarrow(wxWindow& button);

/// Keeps scroll bars from a tree that shows one line only, which they would cover: it stands as a
/// field, in a field's frame.
void hideScrollBars(wxTreeCtrl& tree);

/// Undoes that bringing an item into view has scrolled the tree sideways.
void scrollToLeftEdge(wxTreeCtrl& tree);

/// How large a tree that shows one line only wants to be, where the toolkit would have it be
/// `best`.
wxSize oneLineSize(const wxTreeCtrl& tree, const wxSize& best);

/// Brings a control that is shown before the siblings that it overlaps.
void bringToFront(wxWindow& control);

/// Whether a window that was shown has got as far as the screen, where a window manager has a say.
bool isOnScreen(const wxWindow& window);

/// What a screen reader calls a control that shows no text of its own.
void setAccessibleName(wxWindow& control, const wxString& name);

/// Tells a screen reader which row of a list has the focus, in a port that draws its lists itself:
/// their rows are nothing that a reader could find. `surface` is the window that draws them.
void describeFocusedRow(wxWindow& surface, const wxString& row);

/// From now on the top-level window `window` stays before `owner`, whichever was there first.
void setOwner(wxWindow& window, wxWindow& owner);

} // namespace vantrel
