#pragma once

#include "app/folders/PCFileCommands.h"

#include <wx/dialog.h>

class wxButton;
class wxStaticText;
class wxTextCtrl;

namespace vantrel {

struct ApplicationState;
class MessageTable;

/// Asks for one line of text. What is wrong with it is said below the field, and OK waits until it
/// is mended.
class frmPrompt : public wxDialog {
  public:
    /// The prompt outlives the dialog.
    frmPrompt(wxWindow* parent, const TextPrompt& prompt, const MessageTable& messages,
              const ApplicationState& state);

    std::string text() const;

  private:
    wxSizer* buildTexts(const ApplicationState& state);
    wxSizer* buildButtons(const MessageTable& messages);
    void confirm();
    void refresh();

    const TextPrompt& prompt_;
    wxTextCtrl* txtName_ = nullptr;
    wxStaticText* lblProblem_ = nullptr;
    wxButton* cmdOK_ = nullptr;
};

/// Opens it over a window, anew for each question; everything is borrowed.
class PromptDialogs : public PromptWindow {
  public:
    PromptDialogs(wxWindow& parent, const MessageTable& messages, const ApplicationState& state)
        : parent_(parent), messages_(messages), state_(state) {}

    std::optional<std::string> ask(const TextPrompt& prompt) override;

  private:
    wxWindow& parent_;
    const MessageTable& messages_;
    const ApplicationState& state_;
};

} // namespace vantrel
