#pragma once

#include <functional>

#include <wx/panel.h>

namespace vantrel {

class MessageTable;
class SettingDraft;

/// The page of the controller model and the check boxes.
class SettingOptionPage : public wxPanel {
  public:
    SettingOptionPage(wxWindow* parent, SettingDraft& draft, const MessageTable& messages);

    /// Called after every edit of the operator.
    std::function<void()> onEdited;

  private:
    wxSizer* buildModels(const MessageTable& messages);
    wxSizer* buildOptions(const MessageTable& messages);
    void edited();

    SettingDraft& draft_;
};

} // namespace vantrel
