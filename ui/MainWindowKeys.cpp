#include "ui/MainWindowKeys.h"

#include "app/commands/CommandRunner.h"
#include "app/commands/MainCommands.h"
#include "base/ApplicationState.h"
#include "ui/FileListControl.h"
#include "ui/MainWindowControls.h"
#include "ui/ViewerSearch.h"

#include <string>

#include <wx/event.h>
#include <wx/frame.h>

namespace vantrel {

void MainWindowKeys::take(wxKeyEvent& event) const {
    if (!isViewerKey(event) && !isPaneKey(event))
        functionKey(event);
}

/// Tab goes from list to list, as in other programs with two panes; with Shift or Ctrl it goes on
/// through the window.
bool MainWindowKeys::isPaneKey(const wxKeyEvent& event) const {
    if (event.GetKeyCode() != WXK_TAB || event.HasAnyModifiers() || state_.ViewerShown ||
        state_.Busy)
        return false;
    wxWindow* const focused = wxWindow::FindFocus();
    if (!controls_.lsvPC->IsDescendant(focused) && !controls_.lsvCtrl->IsDescendant(focused))
        return false;
    commands_.otherPane();
    return true;
}

/// Esc belongs to the viewer's frame and to the list, which has the focus when the viewer appears;
/// in other controls it has a meaning of theirs.
bool MainWindowKeys::isViewerKey(const wxKeyEvent& event) const {
    if (!state_.ViewerShown || state_.Busy)
        return false;
    auto& search = *controls_.viewerSearch;
    wxWindow* const focused = wxWindow::FindFocus();
    const bool isInFrame = controls_.fraFile.panel->IsDescendant(focused);
    const int key = event.GetKeyCode();
    if (key == 'F' && event.GetModifiers() == wxMOD_CONTROL) {
        search.open();
    } else if (key == WXK_F3 && isInFrame && (event.GetModifiers() & ~wxMOD_SHIFT) == 0) {
        search.search(event.ShiftDown() ? SearchDirection::Previous : SearchDirection::Next);
    } else if (key == WXK_ESCAPE && !event.HasAnyModifiers() &&
               (isInFrame || controls_.lsvPC->IsDescendant(focused))) {
        if (search.IsShown())
            search.close();
        else
            commands_.displayFile();
    } else {
        return false;
    }
    return true;
}

/// They act wherever the focus is; the one for help whatever is held down with it.
void MainWindowKeys::functionKey(wxKeyEvent& event) const {
    const int number = event.GetKeyCode() - WXK_F1 + 1;
    const bool isPlain = event.GetKeyCode() == WXK_F1 || !event.HasAnyModifiers();
    const auto* const command =
        number > 0 && isPlain ? runner_.commandOf("F" + std::to_string(number)) : nullptr;
    if (!command)
        return event.Skip();
    // One system tells of a key from inside a hook, where nothing may take long; an operation that
    // has begun until then is not entered.
    window_.CallAfter([command, &runner = runner_] { runner.runIfOffered(*command); });
}

} // namespace vantrel
