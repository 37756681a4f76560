#include "link/OperatorTalk.h"

namespace vantrel {
namespace {

/// Keeps a visible progress window out of the way for the time of a box.
class ProgressAside {
  public:
    explicit ProgressAside(ProgressPanel& progress)
        : progress_(progress), wasVisible_(progress.isVisible()) {
        progress_.hide();
    }
    ~ProgressAside() {
        if (wasVisible_)
            progress_.showAgain();
    }
    ProgressAside(const ProgressAside&) = delete;
    ProgressAside& operator=(const ProgressAside&) = delete;

  private:
    ProgressPanel& progress_;
    bool wasVisible_;
};

} // namespace

Answer OperatorTalk::ask(const std::string& title, const std::string& question,
                         const std::string& facts, CheckedChoice* choice) {
    const ProgressAside aside(progress_);
    std::string note = progress_.place();
    if (!note.empty() && !facts.empty())
        note += '\n';
    return question_.ask(title, question, {note + facts, progress_.mark()}, choice);
}

void OperatorTalk::tell(const std::string& text, BoxIcon icon) {
    const ProgressAside aside(progress_);
    boxes_.tell(text, icon);
}

bool OperatorTalk::askOkCancel(const std::string& text, BoxIcon icon) {
    const ProgressAside aside(progress_);
    return boxes_.askOkCancel(text, icon);
}

bool OperatorTalk::askYesNo(const std::string& text, BoxIcon icon) {
    const ProgressAside aside(progress_);
    return boxes_.askYesNo(text, icon);
}

} // namespace vantrel
