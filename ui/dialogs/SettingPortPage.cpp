#include "ui/dialogs/SettingPortPage.h"

#include "app/settings/SerialDraft.h"
#include "lang/FormCaptions.h"
#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "ui/dialogs/DialogBasics.h"
#include "ui/look/Captions.h"
#include "ui/look/SystemLook.h"
#include "ui/look/WxText.h"

#include <algorithm>

#include <wx/button.h>
#include <wx/choice.h>
#include <wx/sizer.h>
#include <wx/spinbutt.h>
#include <wx/statbox.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

namespace vantrel {
namespace {

/// Device-independent pixels.
constexpr int gap = 8;

struct ListRow {
    SerialList list;
    const char* name;
    std::int32_t caption;
};
constexpr std::array<ListRow, 4> listRows{{{SerialList::Baudrate, "cmbBaudrate", message::baudRate},
                                           {SerialList::Parity, "cmbParity", message::parity},
                                           {SerialList::DataLen, "cmbDataLen", message::dataLength},
                                           {SerialList::StopBit, "cmbStopBit", message::stopBits}}};

const ListRow& rowOf(SerialList list) {
    return *std::ranges::find(listRows, list, &ListRow::list);
}

wxStaticText* newLabel(wxWindow* box, const std::string& caption) {
    return new wxStaticText(box, wxID_ANY, toWx(caption));
}

} // namespace

SettingPortPage::SettingPortPage(wxWindow* parent, SerialDraft& serial,
                                 const MessageTable& messages)
    : wxPanel(parent, wxID_ANY), serial_(serial) {
    auto* const frame =
        new wxStaticBoxSizer(wxVERTICAL, this, toWx(formCaption(messages, message::portSettings)));
    auto* const box = frame->GetStaticBox();
    box->SetName("fraPort");
    const int border = FromDIP(gap);
    auto* const fields = new wxFlexGridSizer(2, wxSize(2 * border, border));
    fields->Add(newLabel(box, formCaption(messages, message::port)),
                wxSizerFlags().CentreVertical());
    fields->Add(buildPort(box, messages), wxSizerFlags().Expand());
    for (std::size_t index = 0; index < listRows.size(); ++index) {
        const auto& [list, name, caption] = listRows[index];
        fields->Add(newLabel(box, formCaption(messages, caption)), wxSizerFlags().CentreVertical());
        lists_[index] = {list, buildList(box, list, messages)};
        fields->Add(lists_[index].second, wxSizerFlags().Expand());
    }
    frame->Add(fields, wxSizerFlags().Border(wxALL, border));
    cmdReturn_ =
        newCaptionButton(box, formCaption(messages, message::restoreDefaults), "cmdReturn");
    frame->Add(cmdReturn_, wxSizerFlags().Border(wxALL, border));

    auto* const column = new wxBoxSizer(wxVERTICAL);
    column->Add(frame, wxSizerFlags().Expand().Border(wxALL, border));
    SetSizer(column);
    bindEvents();
    refresh();
}

void SettingPortPage::fitFields() {
    makeRoomFor(*txtPort_, "COM32767"); // what a settings file may hold
}

wxSizer* SettingPortPage::buildPort(wxWindow* box, const MessageTable& messages) {
    txtPort_ = new wxTextCtrl(box, wxID_ANY, "", wxDefaultPosition, wxDefaultSize,
                              wxTE_READONLY | wxTE_PROCESS_ENTER, wxDefaultValidator, "txtPort");
    udcPort_ = new wxSpinButton(box, wxID_ANY, wxDefaultPosition, wxDefaultSize,
                                wxSP_VERTICAL | wxSP_ARROW_KEYS, "udcPort");
    for (wxWindow* const control :
         {static_cast<wxWindow*>(txtPort_), static_cast<wxWindow*>(udcPort_)})
        setAccessibleName(*control, toWx(formCaption(messages, message::port)));
    auto* const row = new wxBoxSizer(wxHORIZONTAL);
    // The up-down may be taller than one line of text.
    row->Add(txtPort_, wxSizerFlags(1).CentreVertical());
    row->Add(udcPort_, wxSizerFlags().CentreVertical());
    return row;
}

wxChoice* SettingPortPage::buildList(wxWindow* box, SerialList list, const MessageTable& messages) {
    wxArrayString entries;
    for (const auto entry : serialChoices(list))
        entries.Add(toWx(std::string(entry)));
    auto* const choice = new wxChoice(box, wxID_ANY, wxDefaultPosition, wxDefaultSize, entries, 0,
                                      wxDefaultValidator, rowOf(list).name);
    setAccessibleName(*choice, toWx(formCaption(messages, rowOf(list).caption)));
    keepEnter(*choice);
    return choice;
}

void SettingPortPage::bindEvents() {
    udcPort_->Bind(wxEVT_SPIN, [this](wxSpinEvent& event) { changePort(event.GetPosition()); });
    txtPort_->Bind(wxEVT_TEXT_ENTER,
                   [this](wxCommandEvent&) { lists_.front().second->SetFocus(); });
    // The text belongs to the up-down, so its keys work here too.
    txtPort_->Bind(wxEVT_CHAR_HOOK, [this](wxKeyEvent& event) {
        const int key = event.GetKeyCode();
        if (key == WXK_UP || key == WXK_NUMPAD_UP)
            changePort(serial_.port() + 1);
        else if (key == WXK_DOWN || key == WXK_NUMPAD_DOWN)
            changePort(serial_.port() - 1);
        else
            event.Skip();
    });
    for (const auto& [list, choice] : lists_)
        choice->Bind(wxEVT_CHOICE, [this, list = list](wxCommandEvent& event) {
            if (event.GetSelection() == wxNOT_FOUND)
                return;
            serial_.choose(list, std::size_t(event.GetSelection()));
            edited();
        });
    cmdReturn_->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) {
        serial_.restoreDefaults();
        refresh();
        edited();
    });
}

void SettingPortPage::changePort(int port) {
    serial_.setPort(port);
    refresh();
    edited();
}

void SettingPortPage::edited() {
    if (onEdited)
        onEdited();
}

void SettingPortPage::refresh() {
    const int port = serial_.port();
    txtPort_->ChangeValue("COM" + std::to_string(port));
    // A stored port outside the range is where the up-down starts from.
    udcPort_->SetRange(std::min(port, SerialDraft::lowestPort),
                       std::max(port, SerialDraft::highestPort));
    udcPort_->SetValue(port);
    for (const auto& [list, choice] : lists_) {
        const auto chosen = serial_.chosen(list);
        choice->SetSelection(chosen ? int(*chosen) : wxNOT_FOUND);
    }
}

} // namespace vantrel
