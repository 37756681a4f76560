#include "ui/dialogs/frmVers.h"

#include "base/ApplicationState.h"
#include "lang/FormCaptions.h"
#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "ui/dialogs/DialogBasics.h"
#include "ui/look/Captions.h"
#include "ui/look/IconSet.h"
#include "ui/look/WindowFont.h"
#include "ui/look/WxText.h"

#include <wx/button.h>
#include <wx/iconbndl.h>
#include <wx/sizer.h>
#include <wx/statbmp.h>
#include <wx/stattext.h>

namespace vantrel {
namespace {

constexpr const char* productName = "Vantrel";
constexpr const char* copyrightLine = "Copyright (c) 2026 The Vantrel maintainers";
constexpr int pictureSize = 64; ///< device-independent pixels
constexpr float productNameScale = 1.8F;

} // namespace

frmVers::frmVers(wxWindow* parent, const std::string& version, const MessageTable& messages,
                 const ApplicationState& state)
    : wxDialog(parent, wxID_ANY, "", wxDefaultPosition, wxDefaultSize, wxCAPTION | wxCLOSE_BOX,
               "frmVers"),
      messages_(messages), state_(state) {
    SetExtraStyle(GetExtraStyle() | wxWS_EX_TRANSIENT);
    SetIcons(programIcons());
    buildControls(version);
    applyCaptions();
    swallowF1(*this);
    Bind(wxEVT_CLOSE_WINDOW, [this](wxCloseEvent&) { unload(); });
    Timer1_.Bind(wxEVT_TIMER, [this](wxTimerEvent&) { unload(); });
    CentreOnScreen();
}

wxSizer* frmVers::buildLabels(const std::string& version) {
    const auto label = [this](const std::string& text, const char* name) {
        return new wxStaticText(this, wxID_ANY, toWx(text), wxDefaultPosition, wxDefaultSize, 0,
                                name);
    };
    const auto below = wxSizerFlags().Border(wxTOP, FromDIP(4));
    auto* const column = new wxBoxSizer(wxVERTICAL);
    column->Add(label(productName, "lblProduct"));
    column->Add(label("", "Label1"), below);
    column->Add(label("Ver" + version, "Label2"), below);
    column->Add(label(copyrightLine, "lblCopyright"), wxSizerFlags().Border(wxTOP, FromDIP(12)));
    return column;
}

void frmVers::buildControls(const std::string& version) {
    const wxSize size(pictureSize, pictureSize);
    auto* const row = new wxBoxSizer(wxHORIZONTAL);
    row->Add(new wxStaticBitmap(this, wxID_ANY, icon("vantrel", size)),
             wxSizerFlags().Border(wxRIGHT, FromDIP(20)));
    row->Add(buildLabels(version), wxSizerFlags(1));
    auto* const Command1 = newCaptionButton(this, "", "Command1");
    Command1->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { unload(); });

    const int gap = FromDIP(20);
    auto* const column = new wxBoxSizer(wxVERTICAL);
    column->Add(row, wxSizerFlags(1).Expand().Border(wxALL, gap));
    column->Add(Command1, wxSizerFlags().Right().Border(wxLEFT | wxRIGHT | wxBOTTOM, gap));
    SetSizer(column);
    SetEscapeId(Command1->GetId());
    Command1->SetDefault();
    Command1->SetFocus();
}

void frmVers::applyCaptions() {
    SetTitle(toWx(withoutMnemonic(messages_.getMessage(message::menuAbout))));
    FindWindow("Label1")->SetLabel(toWx(messages_.getMessage(message::versionHeading)));
    FindWindow("Command1")->SetLabel(toWx(formCaption(messages_, message::ok)));
    applyCaptionFont(*this, state_);
    FindWindow("lblProduct")->SetFont(captionFont(state_).Scaled(productNameScale).Bold());
    fitToContents(*this);
}

void frmVers::openModal() {
    if (IsModal()) {
        Raise();
        return;
    }
    applyCaptions();
    // Shown anew it comes to the front: modal and behind the main window, it would seem to block
    // the whole program.
    Hide();
    CentreOnScreen();
    ShowModal();
}

void frmVers::unload() {
    if (IsModal())
        EndModal(wxID_OK);
    else
        Hide();
}

} // namespace vantrel
