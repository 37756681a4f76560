#include "ui/dialogs/frmListFile.h"

#include "app/lists/ListFileDraft.h"
#include "ui/dialogs/DialogBasics.h"
#include "ui/look/Captions.h"
#include "ui/look/IconSet.h"
#include "ui/look/WindowFont.h"
#include "ui/look/WxText.h"

#include <array>

#include <wx/button.h>
#include <wx/iconbndl.h>
#include <wx/listbox.h>
#include <wx/sizer.h>
#include <wx/statbmp.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

namespace vantrel {
namespace {

/// Device-independent pixels.
constexpr int contentWidth = 360;
constexpr int folderIconSize = 16;
constexpr int offeredHeight = 96;

} // namespace

frmListFile::frmListFile(wxWindow* parent, ListFileDraft& draft, const ApplicationState& state)
    : wxDialog(parent, wxID_ANY, toWx(draft.title()), wxDefaultPosition, wxDefaultSize,
               wxCAPTION | wxCLOSE_BOX, "frmListFile"),
      draft_(draft) {
    SetIcons(programIcons());
    const int gap = FromDIP(16);
    auto* const column = new wxBoxSizer(wxVERTICAL);
    column->Add(buildTexts(), wxSizerFlags(1).Expand().Border(wxALL, gap));
    column->Add(buildButtons(), wxSizerFlags().Right().Border(wxLEFT | wxRIGHT | wxBOTTOM, gap));
    SetSizer(column);
    bindEvents();
    applyCaptionFont(*this, state);
    fitToContents(*this);
    CentreOnParent();
    txtFile_->SetFocus();
    txtFile_->SelectAll();
    refresh();
}

wxSizer* frmListFile::buildTexts() {
    const auto label = [this](const std::string& text, const char* name) {
        auto* const control =
            new wxStaticText(this, wxID_ANY, "", wxDefaultPosition, wxDefaultSize, 0, name);
        control->SetLabelText(toWx(text));
        return control;
    };
    const wxSize iconSize(folderIconSize, folderIconSize);
    auto* const folder = new wxBoxSizer(wxHORIZONTAL);
    folder->Add(new wxStaticBitmap(this, wxID_ANY, icon("open", iconSize)),
                wxSizerFlags().CentreVertical().Border(wxRIGHT, FromDIP(6)));
    auto* const LblPath = label(draft_.shownFolder(), "LblPath");
    LblPath->SetToolTip(toWx(draft_.folder()));
    folder->Add(LblPath, wxSizerFlags(1).CentreVertical());

    auto* const column = new wxBoxSizer(wxVERTICAL);
    column->Add(folder, wxSizerFlags().Expand());
    column->Add(label(draft_.fieldLabel(), "lblFile"), wxSizerFlags().Border(wxTOP, FromDIP(14)));
    txtFile_ = new wxTextCtrl(this, wxID_ANY, toWx(draft_.name()), wxDefaultPosition,
                              FromDIP(wxSize(contentWidth, -1)), wxTE_PROCESS_ENTER,
                              wxDefaultValidator, "txtFile");
    column->Add(txtFile_, wxSizerFlags().Expand().Border(wxTOP, FromDIP(4)));
    column->Add(label(draft_.hint(), "lblMsg"), wxSizerFlags().Border(wxTOP, FromDIP(6)));
    if (draft_.offered().empty())
        return column;
    column->Add(label(draft_.offeredLabel(), "lblOffered"),
                wxSizerFlags().Border(wxTOP, FromDIP(14)));
    lstOffered_ = new wxListBox(this, wxID_ANY, wxDefaultPosition,
                                FromDIP(wxSize(contentWidth, offeredHeight)), 0, nullptr,
                                wxLB_SINGLE | wxLB_NEEDED_SB, wxDefaultValidator, "lstOffered");
    for (const std::string& name : draft_.offered())
        lstOffered_->Append(toWx(name));
    column->Add(lstOffered_, wxSizerFlags(1).Expand().Border(wxTOP, FromDIP(4)));
    return column;
}

wxSizer* frmListFile::buildButtons() {
    cmdOK_ = newCaptionButton(this, draft_.okCaption(), "cmdOK");
    auto* const cmdCancel = newCaptionButton(this, draft_.cancelCaption(), "cmdCancel");
    cmdOK_->SetDefault();
    SetEscapeId(cmdCancel->GetId());
    return buttonRow(std::array{cmdOK_, cmdCancel});
}

void frmListFile::bindEvents() {
    txtFile_->Bind(wxEVT_TEXT, [this](wxCommandEvent&) {
        draft_.setName(fromWx(txtFile_->GetValue()));
        refresh();
    });
    txtFile_->Bind(wxEVT_KEY_DOWN, [this](wxKeyEvent& event) {
        const int key = event.GetKeyCode();
        if (event.HasAnyModifiers() || (key != WXK_DOWN && key != WXK_UP))
            event.Skip();
        else if (const auto name = draft_.neighbour(key == WXK_DOWN ? 1 : -1))
            take(*name);
    });
    if (lstOffered_) {
        lstOffered_->Bind(wxEVT_LISTBOX, [this](wxCommandEvent& event) {
            // Clicking the chosen entry again with Ctrl takes the choice away on one system.
            if (event.GetSelection() != wxNOT_FOUND)
                take(draft_.offered().at(std::size_t(event.GetSelection())));
        });
        lstOffered_->Bind(wxEVT_LISTBOX_DCLICK, [this](wxCommandEvent&) { confirm(); });
    }
    txtFile_->Bind(wxEVT_TEXT_ENTER, [this](wxCommandEvent&) { confirm(); });
    cmdOK_->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { confirm(); });
    // The close box and Esc press this one too.
    FindWindow("cmdCancel")->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) {
        draft_.abandon();
        EndModal(wxID_CANCEL);
    });
    swallowF1(*this);
}

/// Selected, so that the next letter typed begins another name.
void frmListFile::take(const std::string& name) {
    txtFile_->ChangeValue(toWx(name));
    txtFile_->SelectAll();
    draft_.setName(name);
    refresh();
}

void frmListFile::confirm() {
    // Some systems tell of Enter in a list as of a double click, and press the button too.
    if (!draft_.canConfirm() || !IsModal())
        return;
    draft_.confirm();
    EndModal(wxID_OK);
}

void frmListFile::refresh() {
    cmdOK_->Enable(draft_.canConfirm());
    if (!lstOffered_)
        return;
    const auto nearest = draft_.nearest();
    if (nearest)
        lstOffered_->EnsureVisible(int(*nearest));
    const int row = nearest && draft_.isOffered(*nearest) ? int(*nearest) : wxNOT_FOUND;
    if (lstOffered_->GetSelection() != row)
        lstOffered_->SetSelection(row);
}

} // namespace vantrel
