#pragma once

#include "link/OperatorTalk.h"

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace vantrel::tests {

/// Records every question and answers from a script; an unscripted one is answered Cancel, as a
/// dialog closed by its close box is.
class ScriptedQuestionWindow : public QuestionWindow {
  public:
    Answer ask(const std::string& title, const std::string& question, const QuestionNote& note,
               CheckedChoice* choice) override {
        choices.push_back(choice ? std::optional(*choice) : std::nullopt);
        if (choice && checked)
            choice->isChecked = *checked;
        titles.push_back(title);
        notes.push_back(note.text);
        marks.push_back(note.mark);
        questions.push_back(question);
        if (whileOpen)
            whileOpen();
        return nextAnswer();
    }

    std::deque<Answer> answers;
    std::vector<std::string> titles;
    std::vector<std::string> questions;
    std::vector<std::string> notes;                    ///< what stood below them
    std::vector<std::optional<CheckedChoice>> choices; ///< as they were when it opened
    std::optional<bool> checked; ///< what the operator makes of a choice, if anything
    std::vector<PlaceMark> marks;
    std::function<void()> whileOpen; ///< what happens while the dialog is on the screen

  private:
    Answer nextAnswer() {
        if (answers.empty())
            return Answer::Cancel;
        const Answer answer = answers.front();
        answers.pop_front();
        return answer;
    }
};

} // namespace vantrel::tests
