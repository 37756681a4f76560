#include "ui/ViewerSearch.h"

#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "ui/FileViewer.h"
#include "ui/look/IconSet.h"
#include "ui/look/SystemLook.h"
#include "ui/look/WxText.h"

#include <algorithm>

#include <wx/bmpbuttn.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

namespace vantrel {

namespace {

const wxSize smallIcon{16, 16};
constexpr int gap = 4; ///< device-independent pixels

} // namespace

ViewerSearch::ViewerSearch(wxWindow* parent, FileViewer& viewer, const wxString& name)
    : wxPanel(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxTAB_TRAVERSAL, name),
      viewer_(viewer),
      text_(new wxTextCtrl(this, wxID_ANY, wxString(), wxDefaultPosition, wxDefaultSize,
                           wxTE_PROCESS_ENTER, wxDefaultValidator, name + "Text")),
      previous_(newButton("searchPrevious", SearchDirection::Previous)),
      next_(newButton("searchNext", SearchDirection::Next)),
      note_(new wxStaticText(this, wxID_ANY, wxString(), wxDefaultPosition, wxDefaultSize,
                             wxST_NO_AUTORESIZE | wxST_ELLIPSIZE_END, name + "Note")) {
    auto* const row = new wxBoxSizer(wxHORIZONTAL);
    row->Add(text_, 1, wxALIGN_CENTRE_VERTICAL);
    for (wxWindow* const part : {static_cast<wxWindow*>(previous_), static_cast<wxWindow*>(next_),
                                 static_cast<wxWindow*>(note_)})
        row->Add(part, 0, wxALIGN_CENTRE_VERTICAL | wxLEFT, FromDIP(gap));
    SetSizer(row);
    text_->SetMinSize(wxSize(1, -1)); // the row gives it what is left
    text_->Bind(wxEVT_TEXT, [this](wxCommandEvent&) { say({}); });
    text_->Bind(wxEVT_TEXT_ENTER, [this](wxCommandEvent&) { search(SearchDirection::Next); });
    text_->Bind(wxEVT_KEY_DOWN, &ViewerSearch::keyPressed, this);
    Hide();
}

wxBitmapButton* ViewerSearch::newButton(const char* drawing, SearchDirection direction) {
    auto* const button =
        new wxBitmapButton(this, wxID_ANY, icon(drawing, smallIcon), wxDefaultPosition,
                           wxDefaultSize, wxBU_EXACTFIT, wxDefaultValidator, drawing);
    allowNarrow(*button);
    button->Bind(wxEVT_BUTTON, [this, direction](wxCommandEvent&) { search(direction); });
    return button;
}

void ViewerSearch::applyCaptions(const MessageTable& messages) {
    const auto text = [&messages](std::int32_t number) {
        return toWx(messages.getMessage(number));
    };
    setAccessibleName(*text_, text(message::searchText));
    const auto captionButton = [](wxWindow& button, const wxString& caption) {
        button.SetToolTip(caption);
        setAccessibleName(button, caption);
    };
    captionButton(*previous_, text(message::tipSearchPrevious));
    captionButton(*next_, text(message::tipSearchNext));
    inVain_ = text(message::searchedInVain);
    wentToEnd_ = text(message::searchWentToEnd);
    wentToStart_ = text(message::searchWentToStart);
    text_->SetHint(text(message::searchText));
    say({});
}

void ViewerSearch::open() {
    show(true);
    text_->SetFocus();
    text_->SelectAll();
}

void ViewerSearch::close() {
    if (IsDescendant(FindFocus()))
        viewer_.SetFocus();
    show(false);
}

void ViewerSearch::search(SearchDirection direction) {
    const auto wanted = fromWx(text_->GetValue());
    if (wanted.empty())
        return open();
    show(true);
    const auto found = viewer_.find(wanted, direction);
    if (!found)
        return say(inVain_);
    const bool isNext = direction == SearchDirection::Next;
    say(found->wentRound ? (isNext ? wentToEnd_ : wentToStart_) : wxString());
}

/// Enter alone is left to the system, which may take it for an input method.
void ViewerSearch::keyPressed(wxKeyEvent& event) {
    const bool isEnter = event.GetKeyCode() == WXK_RETURN || event.GetKeyCode() == WXK_NUMPAD_ENTER;
    if (isEnter && event.GetModifiers() == wxMOD_SHIFT)
        search(SearchDirection::Previous);
    else
        event.Skip();
}

void ViewerSearch::show(bool shown) {
    if (!Show(shown))
        return;
    // The field does not become another size with what is said beside it.
    int widest = 0;
    for (const wxString* const note : {&inVain_, &wentToEnd_, &wentToStart_})
        widest = std::max(widest, note_->GetTextExtent(*note).x);
    note_->SetMinSize(wxSize(widest, note_->GetCharHeight()));
    say({});
    if (onShownOrHidden)
        onShownOrHidden();
}

void ViewerSearch::say(const wxString& note) {
    note_->SetLabelText(note);
    note_->SetToolTip(note);
}

} // namespace vantrel
