#include "ui/dialogs/SettingOptionPage.h"

#include "app/settings/SettingDraft.h"
#include "files/ControllerModels.h"
#include "lang/FormCaptions.h"
#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "ui/look/WxText.h"

#include <array>

#include <wx/checkbox.h>
#include <wx/radiobut.h>
#include <wx/sizer.h>
#include <wx/statbox.h>

namespace vantrel {
namespace {

/// Device-independent pixels.
constexpr int gap = 8;

struct OptionRow {
    SettingOption option;
    const char* name;
    std::int32_t caption;
};
constexpr std::array<OptionRow, 4> optionRows{
    {{SettingOption::SyncroRobotDir, "ChkRoboDir", message::syncRobotFolder},
     {SettingOption::JBR, "chkJBR", message::receiveRelatedJobs},
     {SettingOption::Headder, "chkHeadder", message::showJobHeader},
     {SettingOption::NoSave, "chkIniFile", message::keepNoSettings}}};

/// The model's name and its first letter as the key.
std::string captionOf(const ControllerModel& model) {
    return std::string(model.name) + "(&" + std::string(model.name.substr(0, 1)) + ")";
}

} // namespace

SettingOptionPage::SettingOptionPage(wxWindow* parent, SettingDraft& draft,
                                     const MessageTable& messages)
    : wxPanel(parent, wxID_ANY), draft_(draft) {
    const int border = FromDIP(gap);
    auto* const column = new wxBoxSizer(wxVERTICAL);
    column->Add(buildModels(messages), wxSizerFlags().Expand().Border(wxALL, border));
    column->Add(buildOptions(messages), wxSizerFlags().Expand().Border(wxALL, border));
    SetSizer(column);
}

wxSizer* SettingOptionPage::buildModels(const MessageTable& messages) {
    auto* const frame = new wxStaticBoxSizer(
        wxVERTICAL, this, toWx(formCaption(messages, message::controllerSettings)));
    auto* const box = frame->GetStaticBox();
    box->SetName("FrmRbCtrl");
    // Of a group one button is always on. Where the stored model is none of the six, this is it.
    auto* const none = new wxRadioButton(box, wxID_ANY, "", wxDefaultPosition, wxDefaultSize,
                                         wxRB_GROUP, wxDefaultValidator, "optNone");
    none->Hide();
    none->SetValue(true);
    constexpr int columns = 3;
    auto* const grid = new wxFlexGridSizer(columns, FromDIP(wxSize(4 * gap, gap)));
    int index = 0;
    for (const auto& model : controllerModels()) {
        auto* const button = new wxRadioButton(
            box, wxID_ANY, toWx(captionOf(model)), wxDefaultPosition, wxDefaultSize, 0,
            wxDefaultValidator, "optCtrl" + std::to_string(index));
        if (index == draft_.controler())
            button->SetValue(true);
        button->Bind(wxEVT_RADIOBUTTON, [this, index](wxCommandEvent&) {
            draft_.chooseControler(index);
            edited();
        });
        grid->Add(button);
        ++index;
    }
    frame->Add(grid, wxSizerFlags().Border(wxALL, FromDIP(gap)));
    return frame;
}

wxSizer* SettingOptionPage::buildOptions(const MessageTable& messages) {
    auto* const column = new wxBoxSizer(wxVERTICAL);
    for (const auto& [option, name, caption] : optionRows) {
        auto* const box =
            new wxCheckBox(this, wxID_ANY, toWx(formCaption(messages, caption)), wxDefaultPosition,
                           wxDefaultSize, 0, wxDefaultValidator, name);
        box->SetValue(draft_.isOn(option));
        box->Bind(wxEVT_CHECKBOX, [this, option = option](wxCommandEvent& event) {
            draft_.set(option, event.IsChecked());
            edited();
        });
        column->Add(box, wxSizerFlags().Border(wxBOTTOM, FromDIP(gap)));
    }
    return column;
}

void SettingOptionPage::edited() {
    if (onEdited)
        onEdited();
}

} // namespace vantrel
