#include "link/SessionProgress.h"

#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "link/ProgressPanel.h"
#include "link/SessionServices.h"
#include "link/ShownText.h"

namespace vantrel {

SessionProgress::SessionProgress(const SessionProperties& properties, const MessageTable& messages,
                                 ProgressPanel& panel)
    : properties_(properties), messages_(messages), panel_(panel) {
    panel_.setTitle(properties_.MonitorTitle);
    panel_.setCancelCaption(messages_.resourceMessage(message::resource::cancel));
    panel_.hide();
}

void SessionProgress::begin() {
    pressed_ = false;
    shown_ = false;
    panel_.keepPress(false);
    if (panel_.isVisible())
        isCancelled();
}

void SessionProgress::end() {
    hide();
    panel_.keepPress(false);
}

void SessionProgress::prepare(const std::string& message, bool cancelButton, bool bar) {
    if (silent())
        return;
    panel_.showCancelButton(cancelButton);
    panel_.showBar(bar);
    panel_.step(message, 0, 1, messages_.getMessage(message::waitingForController));
}

void SessionProgress::open(const std::string& message, bool cancelButton, bool bar) {
    prepare(message, cancelButton, bar);
    show(message);
}

void SessionProgress::show(const std::string& message) {
    if (silent())
        return;
    if (panel_.isVisible())
        isCancelled();
    panel_.setTitle(properties_.MonitorTitle);
    panel_.setCancelCaption(messages_.resourceMessage(message::resource::cancel));
    shown_ = true;
    panel_.show(message);
}

void SessionProgress::step(const std::string& message, std::int32_t item, std::int32_t count) {
    if (!silent())
        panel_.step(message, item, count, waitingText(messages_, item, count));
}

void SessionProgress::hide() {
    // The next message clears the press of the window.
    if (panel_.isVisible())
        isCancelled();
    if (shown_ || !silent())
        panel_.hide();
    shown_ = false;
}

bool SessionProgress::isCancelled() {
    pressed_ = pressed_ || (!silent() && panel_.isCancelled());
    if (pressed_)
        panel_.keepPress(true);
    return pressed_;
}

bool SessionProgress::isCancelledAfterYield() {
    if (!silent())
        panel_.yield();
    return isCancelled();
}

bool SessionProgress::isCancelledPassingOver(const std::string& name, std::int32_t item,
                                             std::int32_t count) {
    constexpr std::int32_t shownOnes = 1000; ///< every one of so many
    const bool isLast = item + 1 == count;
    if (!isLast && (item + 1) % shownOnes != 0)
        return isCancelled();
    step(transferring(name), item, count);
    return isCancelledAfterYield();
}

bool SessionProgress::isCancelledInView() {
    if (!panel_.isVisible())
        return pressed_;
    pressed_ = pressed_ || panel_.isCancelled();
    return isCancelled();
}

bool SessionProgress::isCancelledReading(std::int32_t entries) {
    constexpr std::int32_t yieldingOnes = 100; ///< a second of a line that is slow
    if (panel_.isVisible() && entries % yieldingOnes == 0)
        panel_.yield();
    return isCancelledInView();
}

std::string SessionProgress::readingDirectory() const {
    return messages_.getMessage(message::readingDirectory);
}

std::string SessionProgress::transferring(const std::string& name) const {
    return messages_.resourceMessage(message::resource::transferring) + shownText(name);
}

std::string SessionProgress::deleting(const std::string& name) const {
    return messages_.resourceMessage(message::resource::deleting) + shownText(name);
}

bool SessionProgress::silent() const {
    return !properties_.DisplayMonitor;
}

} // namespace vantrel
