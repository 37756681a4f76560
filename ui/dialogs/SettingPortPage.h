#pragma once

#include "app/settings/SerialDraft.h"

#include <array>
#include <functional>
#include <utility>

#include <wx/panel.h>

class wxButton;
class wxChoice;
class wxSpinButton;
class wxTextCtrl;

namespace vantrel {

class MessageTable;
class SerialDraft;

/// The page of the serial line; what its edits mean is in the draft.
class SettingPortPage : public wxPanel {
  public:
    SettingPortPage(wxWindow* parent, SerialDraft& serial, const MessageTable& messages);

    /// Called after every edit of the operator.
    std::function<void()> onEdited;

    /// Gives the port's box the width that its text asks for in its font.
    void fitFields();

  private:
    wxSizer* buildPort(wxWindow* box, const MessageTable& messages);
    wxChoice* buildList(wxWindow* box, SerialList list, const MessageTable& messages);
    void bindEvents();
    void changePort(int port);
    void edited();
    void refresh();

    SerialDraft& serial_;
    wxTextCtrl* txtPort_ = nullptr;
    wxSpinButton* udcPort_ = nullptr;
    std::array<std::pair<SerialList, wxChoice*>, 4> lists_{};
    wxButton* cmdReturn_ = nullptr;
};

} // namespace vantrel
