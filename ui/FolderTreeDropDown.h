#pragma once

#include "app/folders/FolderTreeCommands.h"
#include "files/FolderTree.h"

#include <wx/eventfilter.h>
#include <wx/treectrl.h>

class wxButton;

namespace vantrel {

class FolderTreeCommands;

/// `trvFolderList`: the folder tree that drops down over the list when its button is pressed. A
/// click on a node or Enter chooses; the arrow keys only move, and the expanders only open. Esc
/// and whatever the operator does elsewhere hide it.
class FolderTreeDropDown : public wxTreeCtrl, public FolderTreeView, private wxEventFilter {
  public:
    /// Made hidden. `button` is borrowed and outlives this control.
    FolderTreeDropDown(wxWindow* parent, const wxString& name, wxButton& button);
    ~FolderTreeDropDown() override;

    /// The commands that the operator's events are handed to; before this call they do nothing.
    void connect(FolderTreeCommands& commands);
    /// What button and tree are called in tool tips and by screen readers.
    void setCaption(const wxString& caption);

    bool isDown() const { return isDown_; }
    void showTree(const FolderTree& tree) override;
    void dropDown(bool isDown) override;

  private:
    void bindButton();
    void bindEvents();
    void toggle();
    void keyPressed(wxKeyEvent& event);
    void expanding(wxTreeEvent& event);
    void choose(const wxTreeItemId& item);
    wxTreeItemId nodeAt(const wxMouseEvent& event) const;
    int FilterEvent(wxEvent& event) override;
    bool leaves(wxEvent& event) const;
    bool isElsewhere(wxWindow& window) const;

    wxButton& button_;
    FolderTreeCommands* commands_ = nullptr;
    wxTreeItemId pressed_; ///< the node that the mouse button went down on
    bool isDown_ = false;
    bool filling_ = false;
    bool choosing_ = false;
};

} // namespace vantrel
