#include "link/ProgressPanel.h"

#include <utility>

namespace vantrel {

void ProgressPanel::setTitle(std::string title) {
    title_ = std::move(title);
    refresh();
}

void ProgressPanel::setCancelCaption(std::string caption) {
    cancelCaption_ = std::move(caption);
    refresh();
}

void ProgressPanel::setPlace(std::optional<std::string> place) {
    place_ = std::move(place);
    refresh();
}

std::string ProgressPanel::place() const {
    const std::string line = unmarkedPlace();
    const PlaceMark beside = mark();
    return beside.text.empty() ? line : line + " \u2013 " + beside.text;
}

PlaceMark ProgressPanel::mark() const {
    return markInForce_ && !unmarkedPlace().empty() ? markInForce_() : PlaceMark();
}

std::string ProgressPanel::unmarkedPlace() const {
    if (place_)
        return *place_;
    return usualPlace_ ? usualPlace_() : std::string();
}

void ProgressPanel::setPace(Pace pace) {
    pace_ = std::move(pace);
    paceText_.clear();
    workedBefore_ = {};
    if (clock_)
        visibleSince_ = clock_();
}

std::chrono::milliseconds ProgressPanel::worked() const {
    return visible_ && clock_ ? workedBefore_ + (clock_() - visibleSince_) : workedBefore_;
}

void ProgressPanel::setVisible(bool visible) {
    workedBefore_ = worked();
    if (clock_)
        visibleSince_ = clock_();
    visible_ = visible;
}

void ProgressPanel::showCancelButton(bool shown) {
    cancelButtonShown_ = shown;
    refresh();
}

void ProgressPanel::showBar(bool shown) {
    barShown_ = shown;
    refresh();
}

void ProgressPanel::show(std::string message) {
    message_ = std::move(message);
    clearCancel();
    setVisible(true);
    refresh();
    yield();
}

void ProgressPanel::showAgain() {
    setVisible(true);
    refresh();
}

void ProgressPanel::hide() {
    if (!visible_)
        return;
    setVisible(false);
    if (view_)
        view_->refresh(*this);
}

void ProgressPanel::step(std::string message, int item, int count, std::string waitingFor) {
    message_ = std::move(message);
    item_ = item;
    count_ = count;
    waitingFor_ = std::move(waitingFor);
    refresh();
}

void ProgressPanel::yield() {
    if (view_)
        view_->yield();
}

void ProgressPanel::unload() {
    setVisible(false);
    if (ProgressView* const view = std::exchange(view_, nullptr))
        view->unload();
}

// Texts that change while nobody sees them are painted when the window comes back.
void ProgressPanel::refresh() {
    if (pace_)
        paceText_ = pace_(item_, count_, worked());
    if (view_ && visible_)
        view_->refresh(*this);
}

} // namespace vantrel
