#pragma once

#include "console/Request.h"
#include "lang/MessageBoxes.h"
#include "link/OperatorTalk.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <string>

namespace vantrel {

class Report;

/// How questions are answered where nobody sits.
struct AnswerPolicy {
    OverwritePolicy overwrite = OverwritePolicy::Never; ///< of a file that is there
    bool deletes = false;    ///< every question is whether to delete, and that is the wish
    bool keepsGoing = false; ///< after a failure
    bool saysYes = false;    ///< to leave another robot's folder, or to replace a list's values
    std::function<std::optional<std::string>()> readLine = {}; ///< when somebody sits there
};

AnswerPolicy answerPolicy(const Request& request);

/// Boxes and questions as lines of the messages.
class ConsoleTalk final : public MessageBoxes, public QuestionWindow {
  public:
    ConsoleTalk(Report& report, AnswerPolicy policy)
        : report_(report), policy_(std::move(policy)) {}

    void tell(const std::string& text, BoxIcon icon) override;
    bool askOkCancel(const std::string& text, BoxIcon icon) override;
    bool askYesNo(const std::string& text, BoxIcon icon) override;
    Answer ask(const std::string& title, const std::string& question, const QuestionNote& note,
               CheckedChoice* choice) override;

  private:
    /// One of the first so many answers.
    Answer typedAnswer(const std::string& question, std::size_t offered) const;
    Answer deletionAnswer();

    Report& report_;
    AnswerPolicy policy_;
    std::size_t told_ = 0;
    std::optional<std::size_t> toldBeforeDeletions_;
};

} // namespace vantrel
