#include "ui/dialogs/SettingRobotPage.h"

#include "app/robots/RobotCheck.h"
#include "app/robots/RobotListDraft.h"
#include "lang/FormCaptions.h"
#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "link/ShownText.h"
#include "ui/dialogs/DialogBasics.h"
#include "ui/dialogs/FolderChoicePanel.h"
#include "ui/look/Captions.h"
#include "ui/look/SystemLook.h"
#include "ui/look/WxText.h"

#include <utility>

#include <wx/button.h>
#include <wx/listbox.h>
#include <wx/menu.h>
#include <wx/sizer.h>
#include <wx/statbox.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

namespace vantrel {
namespace {

/// Device-independent pixels.
constexpr int listCharacters = 22; ///< of a robot's name, as wide as an average one
constexpr int gap = 8;

/// The point of the main keyboard, or whatever decimal sign the keypad has.
bool isPoint(const wxKeyEvent& event) {
    const int key = event.GetKeyCode();
    return key == '.' || key == WXK_NUMPAD_DECIMAL || key == WXK_NUMPAD_SEPARATOR;
}

wxStaticBoxSizer* newFrame(wxWindow* parent, const std::string& caption, const char* name) {
    auto* const frame = new wxStaticBoxSizer(wxVERTICAL, parent, toWx(caption));
    frame->GetStaticBox()->SetName(name);
    return frame;
}

wxTextCtrl* newBox(wxWindow* parent, const char* name) {
    return new wxTextCtrl(parent, wxID_ANY, "", wxDefaultPosition, wxDefaultSize,
                          wxTE_PROCESS_ENTER, wxDefaultValidator, name);
}

} // namespace

SettingRobotPage::SettingRobotPage(wxWindow* parent, RobotListDraft& robots,
                                   const MessageTable& messages, FolderChoiceSource sources)
    : wxPanel(parent, wxID_ANY), robots_(robots), messages_(messages) {
    const int margin = FromDIP(gap);
    auto* const row = new wxBoxSizer(wxHORIZONTAL);
    row->Add(buildList(messages), wxSizerFlags(1).Expand().Border(wxALL, margin));
    row->Add(buildRobot(messages, std::move(sources)),
             wxSizerFlags(2).Expand().Border(wxTOP | wxRIGHT | wxBOTTOM, margin));
    SetSizer(row);
    bindList();
    bindListMenu();
    bindFields();
    refresh();
}

void SettingRobotPage::fitFields() {
    lstRgstRbt_->SetMinSize(wxSize(listCharacters * lstRgstRbt_->GetCharWidth(), -1));
    for (auto* const part : txtIP_)
        makeRoomFor(*part, "000");
}

wxSizer* SettingRobotPage::buildList(const MessageTable& messages) {
    auto* const frame =
        newFrame(this, formCaption(messages, message::registeredRobots), "frmRgstRbt");
    auto* const box = frame->GetStaticBox();
    lstRgstRbt_ = new wxListBox(
        box, wxID_ANY, wxDefaultPosition, wxSize(listCharacters * GetCharWidth(), -1), 0, nullptr,
        wxLB_SINGLE | wxLB_NEEDED_SB | wxLB_HSCROLL, wxDefaultValidator, "lstRgstRbt");
    setAccessibleName(*lstRgstRbt_, toWx(formCaption(messages, message::registeredRobots)));
    cmdAdd_ = {newCaptionButton(box, formCaption(messages, message::insertAfter), "cmdAdd0"),
               newCaptionButton(box, formCaption(messages, message::insertBefore), "cmdAdd1")};
    cmdDel_ = newCaptionButton(box, formCaption(messages, message::deleteRobot), "cmdDel");
    const int border = FromDIP(gap);
    frame->Add(lstRgstRbt_, wxSizerFlags(1).Expand().Border(wxALL, border));
    for (auto* const button : {cmdAdd_[0], cmdAdd_[1], cmdDel_})
        frame->Add(button, wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxBOTTOM, border));
    return frame;
}

wxSizer* SettingRobotPage::buildRobot(const MessageTable& messages, FolderChoiceSource sources) {
    auto* const frame = newFrame(this, formCaption(messages, message::selectedRobot), "frmSelRbt");
    auto* const box = frame->GetStaticBox();
    const int border = FromDIP(gap);
    frame->Add(buildFields(box, messages), wxSizerFlags().Expand().Border(wxALL, border));

    const std::string caption = formCaption(messages, message::initialFolder);
    auto* const folderFrame = newFrame(box, caption, "frmInitDir");
    folder_ = new FolderChoicePanel(folderFrame->GetStaticBox(), std::move(sources), caption);
    folderFrame->Add(folder_, wxSizerFlags(1).Expand().Border(wxALL, border));
    frame->Add(folderFrame, wxSizerFlags(1).Expand().Border(wxLEFT | wxRIGHT | wxBOTTOM, border));
    return frame;
}

wxSizer* SettingRobotPage::buildFields(wxWindow* box, const MessageTable& messages) {
    const auto label = [&](int text, const char* name) {
        return new wxStaticText(box, wxID_ANY, toWx(formCaption(messages, text)), wxDefaultPosition,
                                wxDefaultSize, 0, name);
    };
    auto* const fields = new wxFlexGridSizer(2, FromDIP(wxSize(gap, gap)));
    fields->AddGrowableCol(1);
    fields->Add(label(message::settingsRobotName, "lblRbtName"), wxSizerFlags().CentreVertical());
    txtRbtName_ = newBox(box, "txtRbtName");
    fields->Add(txtRbtName_, wxSizerFlags().Expand());
    fields->Add(label(message::settingsIPAddress, "lblIPaddr"), wxSizerFlags().CentreVertical());

    constexpr std::array names{"txtIP1", "txtIP2", "txtIP3", "txtIP4"};
    auto* const address = new wxBoxSizer(wxHORIZONTAL);
    for (std::size_t part = 0; part < names.size(); ++part) {
        if (part > 0)
            address->Add(new wxStaticText(box, wxID_ANY, "."),
                         wxSizerFlags().Bottom().Border(wxLEFT | wxRIGHT, FromDIP(3)));
        txtIP_[part] = newBox(box, names[part]);
        setAccessibleName(*txtIP_[part], toWx(formCaption(messages, message::settingsIPAddress) +
                                              " " + std::to_string(part + 1)));
        address->Add(txtIP_[part]);
    }
    fields->Add(address);
    return fields;
}

void SettingRobotPage::showInserted() {
    refresh();
    edited();
    focusName();
}

void SettingRobotPage::bindList() {
    lstRgstRbt_->Bind(wxEVT_LISTBOX, [this](wxCommandEvent& event) {
        if (event.GetSelection() == wxNOT_FOUND)
            return;
        robots_.select(std::size_t(event.GetSelection()));
        refreshFields();
    });
    lstRgstRbt_->Bind(wxEVT_LISTBOX_DCLICK, [this](wxCommandEvent&) { focusName(); });
    onEnter(*lstRgstRbt_, [this] { focusName(); });
    cmdAdd_[0]->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) {
        robots_.insertAfter();
        showInserted();
    });
    cmdAdd_[1]->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) {
        robots_.insertBefore();
        showInserted();
    });
    cmdDel_->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) {
        robots_.remove();
        // A button that goes off would leave the keyboard nowhere.
        if (!robots_.selected())
            cmdAdd_[0]->SetFocus();
        refresh();
        edited();
    });
}

void SettingRobotPage::bindListMenu() {
    lstRgstRbt_->Bind(wxEVT_CONTEXT_MENU, [this](wxContextMenuEvent& event) {
        const wxPoint place = event.GetPosition();
        // The menu key's menu belongs to the selected robot, wherever the pointer is.
        if (place != wxDefaultPosition)
            selectUnder(lstRgstRbt_->ScreenToClient(place));
        showListMenu(place == wxDefaultPosition ? wxPoint(FromDIP(gap), FromDIP(gap))
                                                : lstRgstRbt_->ScreenToClient(place));
    });
}

void SettingRobotPage::selectUnder(const wxPoint& place) {
    const int row = lstRgstRbt_->HitTest(place);
    if (row == wxNOT_FOUND || robots_.selected() == std::size_t(row))
        return;
    lstRgstRbt_->SetSelection(row);
    robots_.select(std::size_t(row));
    refreshFields();
}

void SettingRobotPage::showListMenu(const wxPoint& place) {
    if (!robots_.selected())
        return;
    wxMenu menu;
    const auto add = [&](std::int32_t caption, const std::function<void()>& action) {
        auto* const item = menu.Append(wxID_ANY, toWx(messages_.getMessage(caption)));
        menu.Bind(
            wxEVT_MENU,
            [this, &action](wxCommandEvent&) {
                // After the menu has gone, which is nobody's owner.
                if (action)
                    CallAfter(action);
            },
            item->GetId());
    };
    add(message::menuTestConnection, onTestConnection);
    add(message::menuRobotMark, onEditMark);
    lstRgstRbt_->PopupMenu(&menu, place);
}

// Enter is taken as the boxes' own event, after an input method has had its say: it also ends the
// choice of characters there.
void SettingRobotPage::bindFields() {
    txtRbtName_->Bind(wxEVT_TEXT, [this](wxCommandEvent&) {
        const auto selected = robots_.selected();
        if (!selected)
            return;
        const std::string name = fromWx(txtRbtName_->GetValue());
        robots_.rename(name);
        lstRgstRbt_->SetString(unsigned(*selected), toWx(shownText(name)));
        edited();
    });
    txtRbtName_->Bind(wxEVT_TEXT_ENTER, [this](wxCommandEvent&) { txtIP_[0]->SetFocus(); });
    for (std::size_t part = 0; part < txtIP_.size(); ++part)
        bindAddress(part);
    folder_->onChosen = [this](const std::string& folder) {
        robots_.setFolder(folder);
        edited();
    };
}

void SettingRobotPage::bindAddress(std::size_t part) {
    wxTextCtrl& box = *txtIP_[part];
    const bool isLast = part + 1 == txtIP_.size();
    box.Bind(wxEVT_TEXT, [this, part, isLast, &box](wxCommandEvent&) {
        const std::string text = fromWx(box.GetValue());
        const TypedPart typed = robots_.setAddressPart(part, text);
        if (typed.text != text) {
            box.ChangeValue(toWx(typed.text));
            box.SetInsertionPointEnd();
        }
        edited();
        if (typed.movesOn && !isLast)
            focusAfterAddress(part);
    });
    box.Bind(wxEVT_TEXT_ENTER, [this, part](wxCommandEvent&) { focusAfterAddress(part); });
    box.Bind(wxEVT_CHAR_HOOK, [this, part, isLast](wxKeyEvent& event) {
        if (isPoint(event) && !isLast)
            focusAfterAddress(part);
        else
            event.Skip();
    });
    box.Bind(wxEVT_SET_FOCUS, [&box](wxFocusEvent& event) {
        event.Skip();
        // The system's own handling of the focus, and of the click that gave it, comes after this.
        box.CallAfter([&box] {
            if (box.HasFocus())
                box.SelectAll();
        });
    });
}

void SettingRobotPage::focusAfterAddress(std::size_t part) {
    if (part + 1 < txtIP_.size())
        txtIP_[part + 1]->SetFocus();
    else
        folder_->focusDrives();
}

void SettingRobotPage::focusName() {
    txtRbtName_->SetFocus();
    txtRbtName_->SelectAll();
}

void SettingRobotPage::edited() {
    if (onEdited)
        onEdited();
}

void SettingRobotPage::refresh() {
    wxArrayString names;
    for (const RobotEntry& entry : robots_.entries())
        names.Add(toWx(shownText(entry.robot.Name)));
    lstRgstRbt_->Set(names);
    if (const auto selected = robots_.selected()) {
        lstRgstRbt_->SetSelection(int(*selected));
        lstRgstRbt_->EnsureVisible(int(*selected));
    }
    refreshFields();
}

void SettingRobotPage::refreshFields() {
    const bool hasRobot = robots_.selected().has_value();
    const RobotRecord& robot = robots_.selectedRobot();
    txtRbtName_->ChangeValue(toWx(robot.Name));
    txtRbtName_->Enable(hasRobot);
    for (std::size_t part = 0; part < txtIP_.size(); ++part) {
        txtIP_[part]->ChangeValue(toWx(robot.*addressParts[part]));
        txtIP_[part]->Enable(hasRobot);
    }
    cmdDel_->Enable(hasRobot);
    folder_->show(robot.Path);
    folder_->Enable(hasRobot);
}

void SettingRobotPage::showFault(const RobotFault& fault) {
    robots_.select(fault.robot);
    refresh();
    switch (fault.kind) {
    case RobotFault::Kind::AddressRefused:
        return txtIP_[fault.addressPart]->SetFocus();
    case RobotFault::Kind::FolderRefused:
        return folder_->focusFolders();
    case RobotFault::Kind::NoName:
    case RobotFault::Kind::NameTaken:
    case RobotFault::Kind::NameRefused:
        return focusName();
    }
}

} // namespace vantrel
