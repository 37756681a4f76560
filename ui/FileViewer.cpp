#include "ui/FileViewer.h"

#include "ui/NativeControls.h"
#include "ui/look/WxText.h"

#include <wx/utils.h>

namespace vantrel {

namespace {

/// Bytes. A slice takes the control some milliseconds.
constexpr std::size_t sliceSize = 65536;

bool isArrow(int key) {
    return (key >= WXK_LEFT && key <= WXK_DOWN) ||
           (key >= WXK_NUMPAD_LEFT && key <= WXK_NUMPAD_DOWN);
}

/// Keys that are the window's: its menus, its accelerators and the context menu. F7 is not: it
/// would take the caret away.
bool isWindowsKey(const wxKeyEvent& event) {
    const int key = event.GetKeyCode();
    const bool isFunctionKey = key >= WXK_F1 && key <= WXK_F24 && key != WXK_F7;
    return event.AltDown() || isFunctionKey || key == WXK_ALT || key == WXK_WINDOWS_MENU;
}

} // namespace

FileViewer::FileViewer(wxWindow* parent, const wxString& name)
    : wxTextCtrl(parent, wxID_ANY, wxString(), wxDefaultPosition, wxDefaultSize,
                 wxTE_MULTILINE | wxTE_RICH2 | wxTE_READONLY | wxTE_DONTWRAP |
                     wxTE_NOHIDESEL, // what was found stays marked while the search has the keys
                 wxDefaultValidator, name) {
    Bind(wxEVT_KEY_DOWN, &FileViewer::keyPressed, this);
    Bind(wxEVT_IDLE, &FileViewer::appendNext, this);
}

void FileViewer::showText(std::string_view text) {
    text_ = text;
    rest_ = TextSlices(text);
    awaited_.reset();
    ChangeValue(toWx(rest_.next(sliceSize)));
    SetInsertionPoint(0);
    ShowPosition(0);
}

void FileViewer::clear() {
    text_ = {};
    rest_ = {};
    awaited_.reset();
    ChangeValue(wxString());
}

void FileViewer::setFontSize(int points) {
    SetFont(wxFontInfo(points).Family(wxFONTFAMILY_TELETYPE));
}

void FileViewer::appendNext(wxIdleEvent& event) {
    event.Skip();
    if (rest_.isDone())
        return;
    appendQuietly(*this, rest_.next(sliceSize));
    event.RequestMore(!rest_.isDone());
    selectAwaited();
}

std::optional<FoundText> FileViewer::find(const std::string& wanted, SearchDirection direction) {
    constexpr std::size_t rareWidth = sizeof(wxChar) == sizeof(char16_t) ? 2 : 1;
    const wxBusyCursor busy;
    const auto found = findText(text_, wanted, selection(), direction, rareWidth);
    if (found)
        awaited_ = found->range;
    selectAwaited();
    return found;
}

ShownRange FileViewer::selection() const {
    if (awaited_)
        return *awaited_;
    long begin = 0, end = 0;
    GetSelection(&begin, &end);
    return {std::size_t(begin), std::size_t(end)};
}

void FileViewer::selectAwaited() {
    if (!awaited_ || (!isWhole() && std::size_t(GetLastPosition()) < awaited_->end))
        return;
    const auto range = *awaited_;
    awaited_.reset();
    SetSelection(long(range.begin), long(range.end));
    ShowPosition(long(range.begin));
}

void FileViewer::keyPressed(wxKeyEvent& event) {
    if (isArrow(event.GetKeyCode()))
        awaited_.reset();
    if (isArrow(event.GetKeyCode()) || isWindowsKey(event))
        event.Skip();
    else if (event.GetKeyCode() == WXK_TAB) // the focus has to come out again
        Navigate(event.ShiftDown() ? wxNavigationKeyEvent::IsBackward
                                   : wxNavigationKeyEvent::IsForward);
}

} // namespace vantrel
