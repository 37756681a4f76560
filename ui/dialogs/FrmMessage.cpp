#include "ui/dialogs/FrmMessage.h"

#include "base/ApplicationState.h"
#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "ui/dialogs/DialogBasics.h"
#include "ui/look/IconSet.h"
#include "ui/look/WindowFont.h"
#include "ui/look/WxText.h"

#include <wx/iconbndl.h>
#include <wx/sizer.h>
#include <wx/statbmp.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

namespace vantrel {
namespace {

/// Device-independent pixels.
constexpr int messageWidth = 260;
constexpr int pictureSize = 48;

} // namespace

FrmMessage::FrmMessage(const std::string& body, const MessageTable& messages,
                       const ApplicationState& state)
    : wxDialog(nullptr, wxID_ANY, "Execution Message", wxDefaultPosition, wxDefaultSize,
               wxCAPTION | wxDIALOG_NO_PARENT, "FrmMessage") {
    SetExtraStyle(GetExtraStyle() | wxWS_EX_TRANSIENT);
    SetIcons(programIcons());
    if (const auto title = messages.getMessage(message::executionMessage); !title.empty())
        SetTitle(toWx(title));
    buildControls(body, messages);
    applyCaptionFont(*this, state);
    fitToContents(*this);
    CentreOnScreen();
    Bind(wxEVT_ACTIVATE, [this](wxActivateEvent& event) {
        event.Skip();
        if (!event.GetActive() && !IsBeingDeleted())
            Destroy();
    });
}

void FrmMessage::buildControls(const std::string& body, const MessageTable& messages) {
    auto* const lblMsg =
        new wxStaticText(this, wxID_ANY, "", wxDefaultPosition, wxDefaultSize, 0, "lblMsg");
    lblMsg->SetLabelText(toWx(messages.getMessage(message::startingUp)));
    auto* const TxtMessage = new wxTextCtrl(
        this, wxID_ANY, toWx(body), wxDefaultPosition, FromDIP(wxSize(messageWidth, -1)),
        wxTE_READONLY | wxBORDER_NONE, wxDefaultValidator, "TxtMessage");
    TxtMessage->SetBackgroundColour(GetBackgroundColour());
    TxtMessage->SetCanFocus(false);
    TxtMessage->Show(!body.empty());

    const wxSize size(pictureSize, pictureSize);
    auto* const texts = new wxBoxSizer(wxVERTICAL);
    texts->Add(lblMsg, wxSizerFlags().Expand());
    texts->Add(TxtMessage, wxSizerFlags().Expand().Border(wxTOP, FromDIP(8)));
    auto* const row = new wxBoxSizer(wxHORIZONTAL);
    row->Add(new wxStaticBitmap(this, wxID_ANY, icon("vantrel", size)),
             wxSizerFlags().CentreVertical().Border(wxRIGHT, FromDIP(16)));
    row->Add(texts, wxSizerFlags(1).CentreVertical());
    auto* const margins = new wxBoxSizer(wxVERTICAL);
    margins->Add(row, wxSizerFlags(1).Expand().Border(wxALL, FromDIP(20)));
    SetSizer(margins);
}

void FrmMessage::showPainted(const std::function<void()>& yield) {
    Show();
    // An event may take the window away.
    yield();
}

} // namespace vantrel
