#include "ui/dialogs/frmRobotMark.h"

#include "files/RobotMark.h"
#include "lang/FormCaptions.h"
#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "link/ShownText.h"
#include "ui/dialogs/DialogBasics.h"
#include "ui/look/Captions.h"
#include "ui/look/ColourSwatch.h"
#include "ui/look/IconSet.h"
#include "ui/look/SystemLook.h"
#include "ui/look/WindowFont.h"
#include "ui/look/WxText.h"

#include <array>
#include <optional>

#include <wx/button.h>
#include <wx/choice.h>
#include <wx/iconbndl.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

namespace vantrel {
namespace {

/// Device-independent pixels.
constexpr int gap = 8;
constexpr int swatchWidth = 24;

/// The first entry of the list is that of no colour.
std::optional<std::size_t> colourAt(int entry) {
    return entry > 0 ? std::optional(std::size_t(entry) - 1) : std::nullopt;
}

} // namespace

frmRobotMark::frmRobotMark(wxWindow* parent, RobotMarkDraft& mark, const MessageTable& messages,
                           const ApplicationState& state)
    : wxDialog(parent, wxID_ANY, toWx(withoutMnemonic(messages.getMessage(message::menuRobotMark))),
               wxDefaultPosition, wxDefaultSize, wxCAPTION | wxCLOSE_BOX, "frmRobotMark"),
      mark_(mark), messages_(messages) {
    SetIcons(programIcons());
    const int margin = FromDIP(12);
    auto* const heading =
        new wxStaticText(this, wxID_ANY, "", wxDefaultPosition, wxDefaultSize, 0, "lblRobot");
    heading->SetLabelText(toWx(shownText(mark_.robot().Name)));
    auto* const column = new wxBoxSizer(wxVERTICAL);
    column->Add(heading, wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxTOP, margin));
    column->Add(buildFields(), wxSizerFlags(1).Expand().Border(wxALL, margin));
    column->Add(buildButtons(), wxSizerFlags().Right().Border(wxLEFT | wxRIGHT | wxBOTTOM, margin));
    SetSizer(column);
    swallowF1(*this);
    applyCaptionFont(*this, state);
    makeRoomFor(*txtLabel_, std::string(longestLabel, 'M').c_str());
    showColour();
    fitToContents(*this);
    CentreOnParent();
    cmbColour_->SetFocus();
}

wxSizer* frmRobotMark::buildFields() {
    const auto label = [this](std::int32_t number) {
        return new wxStaticText(this, wxID_ANY, toWx(messages_.getMessage(number)));
    };
    cmbColour_ = new wxChoice(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, 0, nullptr, 0,
                              wxDefaultValidator, "cmbColour");
    setAccessibleName(*cmbColour_, toWx(messages_.getMessage(message::markColour)));
    cmbColour_->Append(toWx(messages_.getMessage(message::colourNone)));
    for (const MarkColour& colour : markColours())
        cmbColour_->Append(toWx(messages_.getMessage(colour.name)));
    const auto chosen = mark_.colour();
    cmbColour_->SetSelection(chosen ? int(*chosen) + 1 : 0);
    cmbColour_->Bind(wxEVT_CHOICE, [this](wxCommandEvent&) { showColour(); });
    keepEnter(*cmbColour_);
    swatch_ = new ColourSwatch(this, "shpColour", wxBORDER_SIMPLE);
    swatch_->SetMinSize(FromDIP(wxSize(swatchWidth, 1)));
    txtLabel_ = new wxTextCtrl(this, wxID_ANY, toWx(mark_.label()), wxDefaultPosition,
                               wxDefaultSize, 0, wxDefaultValidator, "txtLabel");
    txtLabel_->SetMaxLength(longestLabel);
    setAccessibleName(*txtLabel_, toWx(messages_.getMessage(message::markLabel)));

    auto* const colour = new wxBoxSizer(wxHORIZONTAL);
    colour->Add(cmbColour_, wxSizerFlags(1).CentreVertical());
    colour->Add(swatch_,
                wxSizerFlags().Expand().ReserveSpaceEvenIfHidden().Border(wxLEFT, FromDIP(gap)));
    auto* const fields = new wxFlexGridSizer(2, FromDIP(wxSize(gap, gap)));
    fields->AddGrowableCol(1);
    fields->Add(label(message::markColour), wxSizerFlags().CentreVertical());
    fields->Add(colour, wxSizerFlags().Expand());
    fields->Add(label(message::markLabel), wxSizerFlags().CentreVertical());
    fields->Add(txtLabel_, wxSizerFlags().Expand());
    return fields;
}

wxSizer* frmRobotMark::buildButtons() {
    auto* const cmdOK = newCaptionButton(this, formCaption(messages_, message::ok), "cmdOK");
    auto* const cmdCancel =
        newCaptionButton(this, formCaption(messages_, message::cancel), "cmdCancel");
    cmdOK->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { confirm(); });
    cmdCancel->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { EndModal(wxID_CANCEL); });
    cmdOK->SetDefault();
    SetEscapeId(cmdCancel->GetId());
    return buttonRow(std::array{cmdOK, cmdCancel});
}

void frmRobotMark::showColour() {
    const auto chosen = colourAt(cmbColour_->GetSelection());
    swatch_->Show(chosen.has_value());
    if (chosen)
        swatch_->showColour(markColours()[*chosen].redGreenBlue,
                            cmbColour_->GetStringSelection().utf8_string());
}

void frmRobotMark::confirm() {
    mark_.chooseColour(colourAt(cmbColour_->GetSelection()));
    mark_.setLabel(fromWx(txtLabel_->GetValue()));
    EndModal(wxID_OK);
}

} // namespace vantrel
