#include "ui/FolderTreeDropDown.h"

#include "app/folders/FolderTreeCommands.h"
#include "ui/NativeControls.h"
#include "ui/look/FolderNodes.h"
#include "ui/look/IconSet.h"
#include "ui/look/SystemLook.h"

#include <utility>

#include <wx/button.h>
#include <wx/wupdlock.h>

namespace vantrel {

namespace {

bool isMousePress(const wxEvent& event) {
    const auto type = event.GetEventType();
    return type == wxEVT_LEFT_DOWN || type == wxEVT_RIGHT_DOWN || type == wxEVT_MIDDLE_DOWN;
}

} // namespace

FolderTreeDropDown::FolderTreeDropDown(wxWindow* parent, const wxString& name, wxButton& button)
    : wxTreeCtrl(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize,
                 wxTR_HAS_BUTTONS | wxTR_LINES_AT_ROOT | wxTR_NO_LINES | wxTR_HIDE_ROOT |
                     wxTR_SINGLE | wxTR_FULL_ROW_HIGHLIGHT | wxBORDER_SIMPLE,
                 wxDefaultValidator, name),
      button_(button) {
    Hide();
    SetImages(folderImages());
    bindButton();
    bindEvents();
    wxEvtHandler::AddFilter(this);
}

FolderTreeDropDown::~FolderTreeDropDown() {
    wxEvtHandler::RemoveFilter(this);
}

void FolderTreeDropDown::connect(FolderTreeCommands& commands) {
    commands_ = &commands;
}

void FolderTreeDropDown::setCaption(const wxString& caption) {
    button_.SetToolTip(caption);
    setAccessibleName(button_, caption);
    setAccessibleName(*this, caption);
}

void FolderTreeDropDown::bindButton() {
    button_.Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { toggle(); });
    button_.Bind(wxEVT_KEY_DOWN, [this](wxKeyEvent& event) {
        const int key = event.GetKeyCode();
        if (key == WXK_F4 || (key == WXK_DOWN && event.AltDown()))
            toggle();
        else if (key == WXK_ESCAPE && isDown_)
            dropDown(false);
        else
            event.Skip();
    });
}

void FolderTreeDropDown::bindEvents() {
    tellReleases(*this);
    Bind(wxEVT_TREE_ITEM_EXPANDING, &FolderTreeDropDown::expanding, this);
    Bind(wxEVT_KEY_DOWN, &FolderTreeDropDown::keyPressed, this);
    Bind(wxEVT_LEFT_DOWN, [this](wxMouseEvent& event) {
        pressed_ = nodeAt(event);
        event.Skip();
    });
    // A press that is drawn off the node again chooses nothing.
    Bind(wxEVT_LEFT_UP, [this](wxMouseEvent& event) {
        const auto released = nodeAt(event);
        if (std::exchange(pressed_, {}) == released && released.IsOk())
            choose(released);
        else
            event.Skip();
    });
}

void FolderTreeDropDown::toggle() {
    if (isDown_)
        dropDown(false);
    else if (commands_)
        commands_->drop();
}

void FolderTreeDropDown::keyPressed(wxKeyEvent& event) {
    const int key = event.GetKeyCode();
    if (key == WXK_ESCAPE || key == WXK_F4 || (key == WXK_UP && event.AltDown()))
        dropDown(false);
    else if (key == WXK_RETURN || key == WXK_NUMPAD_ENTER)
        choose(GetSelection());
    else
        event.Skip();
}

void FolderTreeDropDown::expanding(wxTreeEvent& event) {
    const auto item = event.GetItem();
    if (filling_ || !commands_ || GetChildrenCount(item, false) > 0)
        return;
    const wxBusyCursor busy;
    const auto nodes = commands_->open(nodeOf(*this, item));
    addFolderNodes(*this, item, commands_->tree(), nodes);
    if (!nodes.empty())
        return;
    SetItemHasChildren(item, false);
    event.Veto();
}

void FolderTreeDropDown::choose(const wxTreeItemId& item) {
    const auto node = nodeOf(*this, item);
    if (!commands_ || node == FolderTree::none)
        return;
    // A box that tells of a failure takes the focus; the tree is there again when it closes.
    choosing_ = true;
    commands_->choose(node);
    choosing_ = false;
    if (isDown_)
        SetFocus();
}

void FolderTreeDropDown::showTree(const FolderTree& tree) {
    const wxWindowUpdateLocker frozen(this);
    filling_ = true;
    pressed_ = {};
    DeleteAllItems();
    addFolderNodes(*this, AddRoot(wxString()), tree, tree.roots());
    filling_ = false;
}

void FolderTreeDropDown::dropDown(bool isDown) {
    if (std::exchange(isDown_, isDown) == isDown)
        return;
    if (!isDown) {
        if (HasFocus())
            button_.SetFocus();
        Hide();
        return;
    }
    Show();
    bringToFront(*this);
    SetFocus();
    showSelectedFolder(*this);
}

/// The node whose image, text or row is under the pointer; none on an expander.
wxTreeItemId FolderTreeDropDown::nodeAt(const wxMouseEvent& event) const {
    int where = 0;
    const auto item = HitTest(event.GetPosition(), where);
    constexpr int onRow =
        wxTREE_HITTEST_ONITEMICON | wxTREE_HITTEST_ONITEMLABEL | wxTREE_HITTEST_ONITEMRIGHT;
    return (where & onRow) != 0 ? item : wxTreeItemId();
}

int FolderTreeDropDown::FilterEvent(wxEvent& event) {
    if (isDown_ && !IsBeingDeleted() && leaves(event))
        dropDown(false);
    return Event_Skip;
}

/// Tool bars and bare surfaces take no focus, so its loss alone does not tell.
bool FolderTreeDropDown::leaves(wxEvent& event) const {
    const auto type = event.GetEventType();
    if (type == wxEVT_MENU || type == wxEVT_MENU_OPEN)
        return true;
    auto* const window = dynamic_cast<wxWindow*>(event.GetEventObject());
    if (!window)
        return false;
    if (const auto* active = dynamic_cast<wxActivateEvent*>(&event))
        return !active->GetActive() && !choosing_ && window == wxGetTopLevelParent(&button_);
    return (isMousePress(event) || type == wxEVT_SET_FOCUS) && isElsewhere(*window);
}

bool FolderTreeDropDown::isElsewhere(wxWindow& window) const {
    const bool isOurs = &window == this || IsDescendant(&window) || &window == &button_;
    return !isOurs && wxGetTopLevelParent(&window) == wxGetTopLevelParent(&button_);
}

} // namespace vantrel
