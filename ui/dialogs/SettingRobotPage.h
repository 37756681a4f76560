#pragma once

#include "app/settings/FolderChoice.h"

#include <array>
#include <functional>

#include <wx/panel.h>

class wxButton;
class wxListBox;
class wxTextCtrl;

namespace vantrel {

class FolderChoicePanel;
class MessageTable;
class RobotListDraft;
struct RobotFault;

/// The page of the registered robots; what its edits mean is in the draft.
class SettingRobotPage : public wxPanel {
  public:
    SettingRobotPage(wxWindow* parent, RobotListDraft& robots, const MessageTable& messages,
                     FolderChoiceSource sources);

    /// Called after every edit of the operator.
    std::function<void()> onEdited;
    /// Called when the connection of the selected robot is to be tested.
    std::function<void()> onTestConnection;
    /// Called when its colour and label are to be edited.
    std::function<void()> onEditMark;

    /// Gives the list and the address boxes the widths that their texts ask for in their font.
    void fitFields();
    /// Shows the draft: list, selection and the selected robot's fields.
    void refresh();
    /// Turns the operator to what has to be mended.
    void showFault(const RobotFault& fault);

  private:
    wxSizer* buildList(const MessageTable& messages);
    wxSizer* buildRobot(const MessageTable& messages, FolderChoiceSource sources);
    wxSizer* buildFields(wxWindow* box, const MessageTable& messages);
    void bindList();
    void bindListMenu();
    void selectUnder(const wxPoint& place);
    void showListMenu(const wxPoint& place);
    void showInserted();
    void bindFields();
    void bindAddress(std::size_t part);
    void focusAfterAddress(std::size_t part);
    void focusName();
    void edited();
    void refreshFields();

    RobotListDraft& robots_;
    const MessageTable& messages_;
    wxListBox* lstRgstRbt_ = nullptr;
    std::array<wxButton*, 2> cmdAdd_{};
    wxButton* cmdDel_ = nullptr;
    wxTextCtrl* txtRbtName_ = nullptr;
    std::array<wxTextCtrl*, 4> txtIP_{};
    FolderChoicePanel* folder_ = nullptr;
};

} // namespace vantrel
