#include "ui/dialogs/frmConnectionTest.h"

#include "app/robots/ConnectionTest.h"
#include "lang/FormCaptions.h"
#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "ui/dialogs/DialogBasics.h"
#include "ui/look/Captions.h"
#include "ui/look/IconSet.h"
#include "ui/look/SystemLook.h"
#include "ui/look/WindowFont.h"
#include "ui/look/WxText.h"

#include <algorithm>
#include <array>

#include <wx/button.h>
#include <wx/clipbrd.h>
#include <wx/display.h>
#include <wx/iconbndl.h>
#include <wx/listctrl.h>
#include <wx/sizer.h>
#include <wx/stattext.h>

namespace vantrel {
namespace {

/// Device-independent pixels.
constexpr int outcomeWidth = 260; ///< at first
constexpr int rowsShown = 7;      ///< the header and a scroll bar among them

enum Column { columnStep, columnOutcome };

} // namespace

frmConnectionTest::frmConnectionTest(wxWindow* parent, ConnectionTest& test,
                                     const MessageTable& messages, const ApplicationState& state)
    : wxDialog(parent, wxID_ANY,
               toWx(withoutMnemonic(messages.getMessage(message::menuTestConnection))),
               wxDefaultPosition, wxDefaultSize, wxCAPTION | wxCLOSE_BOX | wxRESIZE_BORDER,
               "frmConnectionTest"),
      test_(test), messages_(messages) {
    SetIcons(programIcons());
    const int gap = FromDIP(12);
    auto* const heading =
        new wxStaticText(this, wxID_ANY, "", wxDefaultPosition, wxDefaultSize, 0, "lblPlace");
    heading->SetLabelText(toWx(test_.heading()));
    buildList();
    auto* const column = new wxBoxSizer(wxVERTICAL);
    column->Add(heading, wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxTOP, gap));
    column->Add(lsvSteps_, wxSizerFlags(1).Expand().Border(wxALL, gap));
    column->Add(buildButtons(), wxSizerFlags().Right().Border(wxLEFT | wxRIGHT | wxBOTTOM, gap));
    SetSizer(column);
    swallowF1(*this);
    applyCaptionFont(*this, state);
    showSteps();
    CentreOnParent();
    Bind(wxEVT_INIT_DIALOG, [this](wxInitDialogEvent& event) {
        event.Skip();
        // The window has to be there before the first step, which may take long.
        CallAfter([this] { test_.run([this] { showSteps(); }); });
    });
}

void frmConnectionTest::buildList() {
    lsvSteps_ = new wxListView(this, wxID_ANY, wxDefaultPosition, wxDefaultSize,
                               wxLC_REPORT | wxLC_SINGLE_SEL, wxDefaultValidator, "lsvSteps");
    setAccessibleName(*lsvSteps_, GetTitle());
    lsvSteps_->AppendColumn(toWx(messages_.getMessage(message::testColumnStep)));
    lsvSteps_->AppendColumn(toWx(messages_.getMessage(message::resultColumnEnd)));
    for (std::size_t step = 0; step < ConnectionTest::stepCount; ++step)
        lsvSteps_->InsertItem(long(step), toWx(test_.caption(step)));
}

wxSizer* frmConnectionTest::buildButtons() {
    auto* const cmdCopy =
        newCaptionButton(this, messages_.getMessage(message::testCopy), "cmdCopy");
    auto* const cmdOK = newCaptionButton(this, formCaption(messages_, message::ok), "cmdOK");
    cmdCopy->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { copy(); });
    cmdOK->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { EndModal(wxID_OK); });
    cmdOK->SetDefault();
    cmdOK->SetFocus();
    SetEscapeId(cmdOK->GetId());
    return buttonRow(std::array{cmdOK, cmdCopy});
}

void frmConnectionTest::showSteps() {
    for (std::size_t step = 0; step < ConnectionTest::stepCount; ++step)
        lsvSteps_->SetItem(long(step), columnOutcome, toWx(test_.outcome(step)));
    fitColumns();
}

/// The window grows with what the steps say, as far as the screen goes.
void frmConnectionTest::fitColumns() {
    const int room = lsvSteps_->GetTextExtent("MM").x;
    std::array<int, 2> widths{0, FromDIP(outcomeWidth)};
    for (long row = 0; row < lsvSteps_->GetItemCount(); ++row)
        for (int column : {columnStep, columnOutcome})
            widths.at(std::size_t(column)) =
                std::max(widths.at(std::size_t(column)),
                         lsvSteps_->GetTextExtent(lsvSteps_->GetItemText(row, column)).x + room);
    for (int column : {columnStep, columnOutcome})
        lsvSteps_->SetColumnWidth(column, widths.at(std::size_t(column)));
    const int index = wxDisplay::GetFromWindow(this);
    const wxRect screen = wxDisplay(index == wxNOT_FOUND ? 0u : unsigned(index)).GetClientArea();
    const int lines = rowsShown * (lsvSteps_->GetCharHeight() + FromDIP(6));
    lsvSteps_->SetMinSize(
        wxSize(std::min(widths[0] + widths[1] + room, screen.width * 9 / 10), lines));
    fitToContents(*this);
}

void frmConnectionTest::copy() const {
    const wxClipboardLocker clipboard;
    if (!clipboard)
        return;
    wxTheClipboard->SetData(new wxTextDataObject(toWx(test_.text())));
    wxTheClipboard->Flush();
}

} // namespace vantrel
