#include "ui/dialogs/frmSetting.h"

#include "app/settings/SettingDraft.h"
#include "base/ApplicationState.h"
#include "files/RobotMark.h"
#include "lang/FormCaptions.h"
#include "lang/MessageBoxes.h"
#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "ui/dialogs/DialogBasics.h"
#include "ui/dialogs/SettingOptionPage.h"
#include "ui/dialogs/SettingPortPage.h"
#include "ui/dialogs/SettingRobotPage.h"
#include "ui/dialogs/frmRobotMark.h"
#include "ui/look/Captions.h"
#include "ui/look/IconSet.h"
#include "ui/look/WindowFont.h"
#include "ui/look/WxText.h"

#include <array>
#include <utility>

#include <wx/button.h>
#include <wx/iconbndl.h>
#include <wx/notebook.h>
#include <wx/sizer.h>

namespace vantrel {

frmSetting::frmSetting(wxWindow* parent, SettingDraft& draft, SettingWindowServices services)
    : wxDialog(parent, wxID_ANY, toWx(formCaption(services.messages, message::settingsTitle)),
               wxDefaultPosition, wxDefaultSize, wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER,
               "frmSetting"),
      draft_(draft), services_(std::move(services)) {
    SetIcons(programIcons());
    buildPages();
    const int gap = FromDIP(12);
    auto* const column = new wxBoxSizer(wxVERTICAL);
    column->Add(SSTab1_, wxSizerFlags(1).Expand().Border(wxALL, gap));
    column->Add(buildButtons(), wxSizerFlags().Right().Border(wxLEFT | wxRIGHT | wxBOTTOM, gap));
    SetSizer(column);
    bindEvents();
    applyCaptionFont(*this, services_.state);
    robotPage_->fitFields();
    portPage_->fitFields();
    // Pages get their size when the book is shown; until then they would keep one that is too small
    // for what is in them, of which the system complains.
    for (std::size_t page = 0; page < SSTab1_->GetPageCount(); ++page)
        SSTab1_->GetPage(page)->Fit();
    fitToContents(*this);
    CentreOnParent();
    refreshButtons();
    FindWindow("lstRgstRbt")->SetFocus();
}

template <typename Page>
Page* frmSetting::addPage(Page* page, int caption) {
    SSTab1_->AddPage(page, toWx(formCaption(services_.messages, caption)));
    page->onEdited = [this] { refreshButtons(); };
    return page;
}

void frmSetting::buildPages() {
    const auto& messages = services_.messages;
    SSTab1_ = new wxNotebook(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, 0, "SSTab1");
    robotPage_ = addPage(
        new SettingRobotPage(SSTab1_, draft_.robots(), messages, std::move(services_.folders)),
        message::settingsRobotPage);
    robotPage_->onTestConnection = [this] { services_.testConnection(*this); };
    robotPage_->onEditMark = [this] { editMark(); };
    portPage_ = addPage(new SettingPortPage(SSTab1_, draft_.serial(), messages),
                        message::settingsCommunicationPage);
    addPage(new SettingOptionPage(SSTab1_, draft_, messages), message::settingsOptionsPage);
}

void frmSetting::editMark() {
    RobotMarkDraft mark(draft_.robots().selectedRobot());
    if (frmRobotMark(this, mark, services_.messages, services_.state).ShowModal() != wxID_OK)
        return;
    draft_.robots().setMark(mark.robot().Colour, mark.robot().Label);
    refreshButtons();
}

wxSizer* frmSetting::buildButtons() {
    const auto& messages = services_.messages;
    auto* const cmdOK = newCaptionButton(this, formCaption(messages, message::ok), "cmdOK");
    auto* const cmdCancel =
        newCaptionButton(this, formCaption(messages, message::cancel), "cmdCancel");
    cmdRefresh_ =
        newCaptionButton(this, formCaption(messages, message::applySettings), "cmdRefresh");
    cmdOK->SetDefault();
    SetEscapeId(cmdCancel->GetId());
    return buttonRow(std::array{cmdOK, cmdCancel, cmdRefresh_});
}

void frmSetting::bindEvents() {
    const auto onClick = [this](const char* name, const std::function<void()>& action) {
        FindWindow(name)->Bind(wxEVT_BUTTON, [this, action](wxCommandEvent&) {
            // Applying fills the panes, which lets events run.
            if (!applying_)
                action();
        });
    };
    onClick("cmdOK", [this] { confirm(); });
    onClick("cmdRefresh", [this] { apply(); });
    // The close box and Esc press this one too.
    onClick("cmdCancel", [this] { EndModal(wxID_CANCEL); });
    swallowF1(*this);
    // Lists take these keys for themselves on some systems.
    Bind(wxEVT_CHAR_HOOK, [this](wxKeyEvent& event) {
        const int key = event.GetKeyCode();
        const bool turns = key == WXK_PAGEUP || key == WXK_PAGEDOWN || key == WXK_TAB;
        if (!turns || !event.ControlDown())
            return event.Skip();
        SSTab1_->AdvanceSelection(key == WXK_TAB ? !event.ShiftDown() : key == WXK_PAGEDOWN);
    });
}

bool frmSetting::apply() {
    if (const auto fault = draft_.fault()) {
        services_.boxes.tell(draft_.textOf(*fault), BoxIcon::Exclamation);
        SSTab1_->SetSelection(SSTab1_->FindPage(robotPage_));
        robotPage_->showFault(*fault);
        return false;
    }
    applying_ = true;
    services_.apply();
    applying_ = false;
    robotPage_->refresh();
    // A button that goes off would leave the keyboard nowhere.
    if (cmdRefresh_->HasFocus())
        FindWindow("cmdOK")->SetFocus();
    refreshButtons();
    return true;
}

void frmSetting::confirm() {
    if (apply())
        EndModal(wxID_OK);
}

void frmSetting::refreshButtons() {
    if (cmdRefresh_)
        cmdRefresh_->Enable(draft_.isEdited());
}

} // namespace vantrel
