#include "console/ConsoleTalk.h"

#include "base/Text.h"
#include "console/Report.h"

#include <iterator>
#include <span>

namespace vantrel {
namespace {

struct TypedAnswer {
    const char* letter;
    const char* word;
    Answer answer;
};

constexpr TypedAnswer answers[] = {{"y", "yes", Answer::Yes},
                                   {"n", "no", Answer::No},
                                   {"a", "all", Answer::All},
                                   {"c", "cancel", Answer::Cancel}};

} // namespace

AnswerPolicy answerPolicy(const Request& request) {
    const bool replacesValues = request.task == Request::Task::GetVariables;
    return {.overwrite = request.overwrite,
            .deletes = request.task == Request::Task::Delete,
            .keepsGoing = request.keepGoing,
            .saysYes = replacesValues ? request.overwrite == OverwritePolicy::Always
                                      : request.folder.has_value()};
}

void ConsoleTalk::tell(const std::string& text, BoxIcon) {
    ++told_;
    report_.message(text);
}

// Asked about each file of a list that is missing. Whoever runs the list looks at all of it first.
bool ConsoleTalk::askOkCancel(const std::string& text, BoxIcon icon) {
    tell(text, icon);
    return true;
}

// Asked before files leave the folder of another robot, and before values of a list are replaced.
bool ConsoleTalk::askYesNo(const std::string& text, BoxIcon icon) {
    if (!policy_.saysYes && policy_.overwrite == OverwritePolicy::Ask && policy_.readLine)
        return typedAnswer(text, 2) == Answer::Yes;
    tell(text, icon);
    return policy_.saysYes;
}

Answer ConsoleTalk::ask(const std::string&, const std::string& question, const QuestionNote& note,
                        CheckedChoice*) {
    if (policy_.deletes)
        return deletionAnswer();
    switch (policy_.overwrite) {
    case OverwritePolicy::Always:
        return Answer::All;
    case OverwritePolicy::Ask:
        return policy_.readLine ? typedAnswer(question + "\n" + note.text, std::size(answers))
                                : Answer::No;
    case OverwritePolicy::Never:
        break;
    }
    return Answer::No;
}

// Each file is asked about before it is deleted, so what was told since the first one is about one
// that was not.
Answer ConsoleTalk::deletionAnswer() {
    if (!toldBeforeDeletions_)
        toldBeforeDeletions_ = told_;
    if (policy_.keepsGoing)
        return Answer::All;
    return told_ == *toldBeforeDeletions_ ? Answer::Yes : Answer::Cancel;
}

Answer ConsoleTalk::typedAnswer(const std::string& question, std::size_t offered) const {
    std::string asked = question + "\n";
    const char* gap = "[";
    for (const TypedAnswer& answer : std::span(answers).first(offered)) {
        asked.append(gap).append(answer.letter).append("] ").append(answer.word);
        gap = "  [";
    }
    while (true) {
        report_.note(asked);
        const auto line = policy_.readLine();
        if (!line)
            return Answer::Cancel;
        const std::string typed = asciiLower(trimmed(*line));
        for (const TypedAnswer& answer : std::span(answers).first(offered))
            if (typed == answer.letter || typed == answer.word)
                return answer.answer;
    }
}

} // namespace vantrel
