#pragma once

#include "app/settings/FolderChoice.h"

#include <functional>
#include <string>

#include <wx/dialog.h>

class wxButton;
class wxNotebook;

namespace vantrel {

class MessageBoxes;
class MessageTable;
class SettingDraft;
class SettingPortPage;
class SettingRobotPage;
struct ApplicationState;

/// What the settings dialog works with; everything is borrowed and outlives it.
struct SettingWindowServices {
    const MessageTable& messages;
    const ApplicationState& state; ///< of the caption font
    MessageBoxes& boxes;
    FolderChoiceSource folders;
    std::function<void()> apply; ///< takes the draft's values; called on a draft without a fault
    /// Tests the connection of the draft's selected robot, in a window over the one given.
    std::function<void(wxWindow&)> testConnection = [](wxWindow&) {};
};

/// The settings dialog; what its fields mean is in the draft.
class frmSetting : public wxDialog {
  public:
    frmSetting(wxWindow* parent, SettingDraft& draft, SettingWindowServices services);

  private:
    template <typename Page>
    Page* addPage(Page* page, int caption);
    void buildPages();
    wxSizer* buildButtons();
    void bindEvents();
    void editMark();
    bool apply();
    void confirm();
    void refreshButtons();

    SettingDraft& draft_;
    SettingWindowServices services_;
    wxNotebook* SSTab1_ = nullptr;
    SettingRobotPage* robotPage_ = nullptr;
    SettingPortPage* portPage_ = nullptr;
    wxButton* cmdRefresh_ = nullptr;
    bool applying_ = false;
};

} // namespace vantrel
