#pragma once

#include "lang/MessageBoxes.h"
#include "link/ProgressPanel.h"

#include <string>

namespace vantrel {

/// The buttons of the question dialog, by their number.
enum class Answer { Yes = 0, No = 1, All = 2, Cancel = 3 };

/// A box to be checked below a question.
struct CheckedChoice {
    std::string caption;
    bool isChecked = false;
};

/// What stands below a question: which controller is meant, with its mark, and facts to decide by.
/// It may be empty.
struct QuestionNote {
    std::string text = {};
    PlaceMark mark = {}; ///< its text is in the note's
};

/// The Yes / No / All / Cancel dialog `frmMsgYesNo`. Closing it otherwise than by a button is
/// Cancel.
class QuestionWindow {
  public:
    virtual ~QuestionWindow() = default;
    /// A `choice` comes back as the operator left it.
    virtual Answer ask(const std::string& title, const std::string& question,
                       const QuestionNote& note, CheckedChoice* choice) = 0;
};

/// Speaks with the operator while an operation may be showing its progress: since the progress
/// window stays on top of everything, it is hidden around each box and question and shown again
/// after it.
class OperatorTalk {
  public:
    OperatorTalk(ProgressPanel& progress, QuestionWindow& question, MessageBoxes& boxes)
        : progress_(progress), question_(question), boxes_(boxes) {}

    /// `facts` stand below the controller that is meant.
    Answer ask(const std::string& title, const std::string& question, const std::string& facts = {},
               CheckedChoice* choice = nullptr);
    void tell(const std::string& text, BoxIcon icon);
    bool askOkCancel(const std::string& text, BoxIcon icon);
    bool askYesNo(const std::string& text, BoxIcon icon);

    const ProgressPanel& progress() const { return progress_; }

  private:
    ProgressPanel& progress_;
    QuestionWindow& question_;
    MessageBoxes& boxes_;
};

} // namespace vantrel
