#include "console/TerminalProgress.h"

#include "base/Text.h"

#include <algorithm>

namespace vantrel {
namespace {

constexpr std::size_t lineLength = 78; ///< characters, so that no terminal breaks the line

} // namespace

TerminalProgress::TerminalProgress(const ConsoleWorld& world, ProgressPanel& panel)
    : world_(world), panel_(panel) {
    panel_.attach(this);
}

TerminalProgress::~TerminalProgress() {
    panel_.attach(nullptr);
    show({});
}

void TerminalProgress::refresh(const ProgressPanel& panel) {
    if (!panel.isVisible())
        return show({});
    const std::string text = panel.place() + "  " + panel.message() + "  " + panel.waitingFor();
    show(std::string(firstCharacters(onOneLine(text), lineLength)));
}

void TerminalProgress::yield() {
    if (world_.isInterrupted())
        panel_.pressCancel();
}

// Wide characters take two places, and so do the blanks that wipe them out; a line end would leave
// the old text on the screen.
void TerminalProgress::show(const std::string& text) {
    if (!world_.showsProgress || text == shown_)
        return;
    const std::size_t wiped = std::min(shown_.size(), lineLength);
    world_.messages("\r" + std::string(wiped, ' ') + "\r" + text);
    shown_ = text;
}

} // namespace vantrel
