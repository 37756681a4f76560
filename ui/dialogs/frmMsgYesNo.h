#pragma once

#include "link/OperatorTalk.h"

#include <array>
#include <string>

#include <wx/dialog.h>

class wxButton;
class wxCheckBox;
class wxStaticText;

namespace vantrel {

struct ApplicationState;
class MessageTable;

/// The question dialog with the answers Yes, No, All and Cancel.
class frmMsgYesNo : public wxDialog {
  public:
    /// `note` and `choice` stand below the question, as in `QuestionWindow`; an empty one leaves no
    /// room. The colour of a mark is a bar beside the note.
    frmMsgYesNo(wxWindow* parent, const std::string& title, const std::string& question,
                const QuestionNote& note, const CheckedChoice* choice, const MessageTable& messages,
                const ApplicationState& state);

    /// The number of the button that was pressed, as text. It is Cancel's until a button is
    /// pressed, so that any other end of the dialog is a Cancel.
    const std::string& answerText() const { return answerText_; }
    /// Whether the choice is checked, if there is one.
    bool isChoiceChecked() const;

  private:
    wxSizer* buildQuestion(const std::string& question, const QuestionNote& note,
                           const CheckedChoice* choice, const ApplicationState& state);
    wxSizer* buildNote(const QuestionNote& note, const ApplicationState& state);
    wxStaticText* newText(const std::string& text, const ApplicationState& state,
                          const std::string& name);
    wxSizer* buildButtons(const MessageTable& messages);
    void press(std::size_t index);

    std::array<wxButton*, 4> cmdYesNo_{};
    wxCheckBox* chkChoice_ = nullptr;
    std::string answerText_ = "3";
};

/// Asks through a dialog of its own for each question.
class QuestionDialogs : public QuestionWindow {
  public:
    QuestionDialogs(const MessageTable& messages, const ApplicationState& state)
        : messages_(messages), state_(state) {}

    Answer ask(const std::string& title, const std::string& question, const QuestionNote& note,
               CheckedChoice* choice) override;

  private:
    const MessageTable& messages_;
    const ApplicationState& state_;
};

} // namespace vantrel
