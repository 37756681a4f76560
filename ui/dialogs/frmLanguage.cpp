#include "ui/dialogs/frmLanguage.h"

#include "app/settings/LanguageDraft.h"
#include "base/ApplicationState.h"
#include "lang/FormCaptions.h"
#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "ui/dialogs/DialogBasics.h"
#include "ui/look/Captions.h"
#include "ui/look/IconSet.h"
#include "ui/look/WindowFont.h"
#include "ui/look/WxText.h"

#include <cstdint>
#include <utility>

#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/fontdlg.h>
#include <wx/iconbndl.h>
#include <wx/imagbmp.h>
#include <wx/image.h>
#include <wx/listbox.h>
#include <wx/log.h>
#include <wx/sizer.h>
#include <wx/statbmp.h>

namespace vantrel {
namespace {

/// Device-independent pixels.
constexpr int listWidth = 220;
constexpr int listHeight = 150;
constexpr int pictureSize = 48;

struct ButtonRow {
    const char* name;
    std::int32_t caption;
    const char* designed;
};
constexpr ButtonRow buttonRows[] = {{"Command1", message::ok, "OK"},
                                    {"Command2", message::cancel, "Cancel"},
                                    {"Command3", message::editLanguageFile, "Edit"},
                                    {"Command4", message::chooseFont, "Font"}};

wxBitmapBundle bitmapOf(const std::string& iconPath) {
    if (!wxImage::FindHandler(wxBITMAP_TYPE_ICO))
        wxImage::AddHandler(new wxICOHandler);
    // A damaged icon is no picture; it is nothing to stop the operator for.
    const wxLogNull noComplaints;
    wxIconBundle icons(toWx(iconPath), wxBITMAP_TYPE_ICO);
    wxVector<wxBitmap> bitmaps;
    for (std::size_t index = 0; index < icons.GetIconCount(); ++index) {
        wxBitmap bitmap;
        bitmap.CopyFromIcon(icons.GetIconByIndex(index));
        bitmaps.push_back(bitmap);
    }
    return wxBitmapBundle::FromBitmaps(bitmaps);
}

} // namespace

frmLanguage::frmLanguage(wxWindow* parent, LanguageDraft& draft, const MessageTable& messages,
                         const ApplicationState& state)
    : wxDialog(parent, wxID_ANY,
               toWx(formCaption(messages, message::languageTitle, "Select Language")),
               wxDefaultPosition, wxDefaultSize,
               wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER | (parent ? 0 : wxDIALOG_NO_PARENT),
               "frmLanguage"),
      draft_(draft), state_(state) {
    SetIcons(programIcons());
    auto* const row = new wxBoxSizer(wxHORIZONTAL);
    row->Add(buildChoice(), wxSizerFlags(1).Expand());
    row->Add(buildButtons(messages), wxSizerFlags().Expand().Border(wxLEFT, FromDIP(16)));
    auto* const Check1 =
        new wxCheckBox(this, wxID_ANY,
                       toWx(formCaption(messages, message::ignoreLanguageSelection,
                                        "Ignore language selection at program start")),
                       wxDefaultPosition, wxDefaultSize, 0, wxDefaultValidator, "Check1");
    Check1->SetValue(draft.ignoreAtStart());
    auto* const column = new wxBoxSizer(wxVERTICAL);
    column->Add(row, wxSizerFlags(1).Expand());
    column->Add(Check1, wxSizerFlags().Border(wxTOP, FromDIP(12)));
    auto* const margins = new wxBoxSizer(wxVERTICAL);
    margins->Add(column, wxSizerFlags(1).Expand().Border(wxALL, FromDIP(16)));
    SetSizer(margins);
    bindEvents();
    refresh();
    CentreOnScreen();
    List1_->SetFocus();
}

wxSizer* frmLanguage::buildChoice() {
    wxArrayString names;
    for (const auto& language : draft_.languages())
        names.Add(toWx(language));
    List1_ =
        new wxListBox(this, wxID_ANY, wxDefaultPosition, FromDIP(wxSize(listWidth, listHeight)),
                      names, wxLB_SINGLE | wxLB_NEEDED_SB, wxDefaultValidator, "List1");
    if (const auto index = draft_.selected())
        List1_->SetSelection(int(*index));
    auto* const column = new wxBoxSizer(wxVERTICAL);
    column->Add(List1_, wxSizerFlags(1).Expand());
    return column;
}

wxSizer* frmLanguage::buildButtons(const MessageTable& messages) {
    Picture1_ = new wxStaticBitmap(this, wxID_ANY, wxBitmapBundle(), wxDefaultPosition,
                                   FromDIP(wxSize(pictureSize, pictureSize)), 0, "Picture1");
    Picture1_->SetMinSize(FromDIP(wxSize(pictureSize, pictureSize)));
    auto* const column = new wxBoxSizer(wxVERTICAL);
    for (const auto& [name, caption, designed] : buttonRows) {
        auto* const button = newCaptionButton(this, formCaption(messages, caption, designed), name);
        column->Add(button, wxSizerFlags().Expand().Border(wxBOTTOM, FromDIP(8)));
    }
    column->AddStretchSpacer();
    column->Add(Picture1_, wxSizerFlags().CentreHorizontal().ReserveSpaceEvenIfHidden());
    static_cast<wxButton*>(FindWindow("Command1"))->SetDefault();
    SetEscapeId(FindWindow("Command2")->GetId());
    return column;
}

void frmLanguage::bindEvents() {
    const auto onClick = [this](const char* name, void (frmLanguage::*method)()) {
        FindWindow(name)->Bind(wxEVT_BUTTON,
                               [this, method](wxCommandEvent&) { (this->*method)(); });
    };
    onClick("Command1", &frmLanguage::confirm);
    onClick("Command2", &frmLanguage::abandon);
    onClick("Command4", &frmLanguage::chooseFont);
    FindWindow("Command3")->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { draft_.edit(); });
    FindWindow("Check1")->Bind(wxEVT_CHECKBOX, [this](wxCommandEvent& event) {
        draft_.setIgnoreAtStart(event.IsChecked());
    });
    List1_->Bind(wxEVT_LISTBOX, [this](wxCommandEvent& event) {
        if (event.GetSelection() != wxNOT_FOUND)
            draft_.select(std::size_t(event.GetSelection()));
        refreshIcon();
    });
    List1_->Bind(wxEVT_LISTBOX_DCLICK, [this](wxCommandEvent&) { confirm(); });
    onEnter(*List1_, [this] { confirm(); });
    swallowF1(*this);
}

void frmLanguage::refresh() {
    FindWindow("Command1")->Enable(draft_.selected().has_value());
    FindWindow("Command3")->Enable(draft_.selected().has_value());
    refreshIcon();
    applyCaptionFont(*this, state_);
    fitToContents(*this);
}

void frmLanguage::refreshIcon() {
    const auto path = draft_.iconPath();
    const auto picture = path.empty() ? wxBitmapBundle() : bitmapOf(path);
    Picture1_->SetBitmap(picture);
    // The toolkit complains of a picture that it is to paint and that is none.
    Picture1_->Show(picture.IsOk());
    Layout();
}

void frmLanguage::chooseFont() {
    wxFontData preset;
    preset.EnableEffects(false);
    preset.SetInitialFont(captionFont(state_));
    wxFontDialog CMDialog1(this, preset);
    if (CMDialog1.ShowModal() != wxID_OK)
        return;
    const wxFont chosen = CMDialog1.GetFontData().GetChosenFont();
    draft_.setFont({fromWx(chosen.GetFaceName()), chosen.GetNumericWeight() >= wxFONTWEIGHT_BOLD,
                    chosen.GetStyle() != wxFONTSTYLE_NORMAL, std::int16_t(chosen.GetPointSize())});
    refresh();
}

void frmLanguage::confirm() {
    if (draft_.selected() && draft_.confirm())
        EndModal(wxID_OK);
}

void frmLanguage::abandon() {
    draft_.abandon();
    EndModal(wxID_CANCEL);
}

} // namespace vantrel
