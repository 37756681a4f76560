#include "console/ConsoleTalk.h"

#include "base/Text.h"
#include "console/Report.h"

namespace vantrel {

AnswerPolicy answerPolicy(const Request& request) {
    return {.overwrite = request.overwrite,
            .deletes = request.task == Request::Task::Delete,
            .keepsGoing = request.keepGoing,
            .folderGiven = request.folder.has_value()};
}

void ConsoleTalk::tell(const std::string& text, BoxIcon) {
    ++told_;
    report_.message(text);
}

// Asked about a file of a list that is missing.
bool ConsoleTalk::askOkCancel(const std::string& text, BoxIcon icon) {
    tell(text, icon);
    return policy_.keepsGoing;
}

// Asked before files leave the folder of another robot.
bool ConsoleTalk::askYesNo(const std::string& text, BoxIcon icon) {
    tell(text, icon);
    return policy_.folderGiven;
}

Answer ConsoleTalk::ask(const std::string&, const std::string& question, const QuestionNote& note,
                        CheckedChoice*) {
    if (policy_.deletes)
        return deletionAnswer();
    switch (policy_.overwrite) {
    case OverwritePolicy::Always:
        return Answer::All;
    case OverwritePolicy::Ask:
        return policy_.readLine ? typedAnswer(question + "\n" + note.text) : Answer::No;
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

Answer ConsoleTalk::typedAnswer(const std::string& question) const {
    while (true) {
        report_.note(question + "\n[y] yes  [n] no  [a] all  [c] cancel");
        const auto line = policy_.readLine();
        const std::string typed = line ? asciiLower(trimmed(*line)) : "c";
        if (typed == "y" || typed == "yes")
            return Answer::Yes;
        if (typed == "n" || typed == "no")
            return Answer::No;
        if (typed == "a" || typed == "all")
            return Answer::All;
        if (typed == "c" || typed == "cancel")
            return Answer::Cancel;
    }
}

} // namespace vantrel
