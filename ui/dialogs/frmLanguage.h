#pragma once

#include <wx/dialog.h>

class wxButton;
class wxListBox;
class wxStaticBitmap;

namespace vantrel {

struct ApplicationState;
class LanguageDraft;
class MessageTable;

/// Lets the operator choose the language and the caption font; what it means is in the draft.
class frmLanguage : public wxDialog {
  public:
    frmLanguage(wxWindow* parent, LanguageDraft& draft, const MessageTable& messages,
                const ApplicationState& state);

  private:
    wxSizer* buildChoice();
    wxSizer* buildButtons(const MessageTable& messages);
    void bindEvents();
    void refresh();
    void refreshIcon();
    void chooseFont();
    void confirm();
    void abandon();

    LanguageDraft& draft_;
    const ApplicationState& state_;
    wxListBox* List1_ = nullptr;
    wxStaticBitmap* Picture1_ = nullptr;
};

} // namespace vantrel
