#pragma once

#include "lang/MessageBoxes.h"

#include <deque>
#include <functional>
#include <string>
#include <vector>

namespace vantrel::tests {

/// Records every box and answers from a script; an unscripted question is answered Cancel or No, as
/// a box closed by its close box is.
class FakeMessageBoxes : public MessageBoxes {
  public:
    enum class Kind { Tell, OkCancel, YesNo };
    struct Box {
        Kind kind;
        std::string text;
        BoxIcon icon;

        friend bool operator==(const Box&, const Box&) = default;
    };

    void tell(const std::string& text, BoxIcon icon) override {
        shown.push_back({Kind::Tell, text, icon});
        if (whileOpen)
            whileOpen();
    }
    bool askOkCancel(const std::string& text, BoxIcon icon) override {
        shown.push_back({Kind::OkCancel, text, icon});
        return nextAnswer();
    }
    bool askYesNo(const std::string& text, BoxIcon icon) override {
        shown.push_back({Kind::YesNo, text, icon});
        return nextAnswer();
    }

    std::vector<std::string> texts() const {
        std::vector<std::string> all;
        for (const auto& box : shown)
            all.push_back(box.text);
        return all;
    }

    std::vector<Box> shown;
    std::function<void()> whileOpen; ///< what events do while a box without a question is open
    std::deque<bool> answers;        ///< true for OK or Yes, in the order of the questions

  private:
    bool nextAnswer() {
        if (answers.empty())
            return false;
        const bool answer = answers.front();
        answers.pop_front();
        return answer;
    }
};

} // namespace vantrel::tests
