#include "ui/QuickFilter.h"

#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "ui/look/IconSet.h"
#include "ui/look/SystemLook.h"
#include "ui/look/WxText.h"

#include <wx/bmpbuttn.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

namespace vantrel {

namespace {

const wxSize smallIcon{16, 16};
constexpr int gap = 4; ///< device-independent pixels

} // namespace

QuickFilter::QuickFilter(wxWindow* parent, const wxString& name)
    : wxPanel(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxTAB_TRAVERSAL, name),
      label_(new wxStaticText(this, wxID_ANY, wxString())),
      text_(new wxTextCtrl(this, wxID_ANY, wxString(), wxDefaultPosition, wxDefaultSize,
                           wxTE_PROCESS_ENTER, wxDefaultValidator, name + "Text")),
      close_(new wxBitmapButton(this, wxID_ANY, icon("close", smallIcon), wxDefaultPosition,
                                wxDefaultSize, wxBU_EXACTFIT, wxDefaultValidator, name + "Close")) {
    allowNarrow(*close_);
    auto* const row = new wxBoxSizer(wxHORIZONTAL);
    row->Add(label_, 0, wxALIGN_CENTRE_VERTICAL);
    row->Add(text_, 1, wxALIGN_CENTRE_VERTICAL | wxLEFT, FromDIP(gap));
    row->Add(close_, 0, wxALIGN_CENTRE_VERTICAL | wxLEFT, FromDIP(gap));
    SetSizer(row);
    text_->SetMinSize(wxSize(1, -1)); // the row gives it what is left
    text_->Bind(wxEVT_TEXT, [this](wxCommandEvent&) {
        if (onChanged)
            onChanged(fromWx(text_->GetValue()));
    });
    text_->Bind(wxEVT_TEXT_ENTER, [this](wxCommandEvent&) { leave(); });
    text_->Bind(wxEVT_KEY_DOWN, &QuickFilter::keyPressed, this);
    close_->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { closeByOperator(); });
    Hide();
}

void QuickFilter::applyCaptions(const MessageTable& messages) {
    const wxString label = toWx(messages.getMessage(message::quickFilterLabel));
    label_->SetLabelText(label);
    setAccessibleName(*text_, label);
    const wxString closing = toWx(messages.getMessage(message::closeQuickFilter));
    close_->SetToolTip(closing);
    setAccessibleName(*close_, closing);
    Layout();
}

void QuickFilter::open() {
    if (Show() && onShownOrHidden)
        onShownOrHidden();
    text_->SetFocus();
    text_->SelectAll();
}

void QuickFilter::close() {
    text_->ChangeValue(wxString());
    if (Hide() && onShownOrHidden)
        onShownOrHidden();
}

/// The operator goes on in the list; a line that leaves nothing out goes.
void QuickFilter::leave() {
    if (text_->IsEmpty())
        close();
    if (onLeft)
        onLeft();
}

void QuickFilter::closeByOperator() {
    const bool leftOut = !text_->IsEmpty();
    close();
    if (leftOut && onChanged)
        onChanged({});
    if (onLeft)
        onLeft();
}

void QuickFilter::keyPressed(wxKeyEvent& event) {
    if (event.GetKeyCode() == WXK_ESCAPE)
        closeByOperator();
    else if (event.GetKeyCode() == WXK_DOWN)
        leave();
    else
        event.Skip();
}

} // namespace vantrel
