#include "files/CommandScopes.h"

#include "files/PaneWindow.h"
#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "link/ProgressPanel.h"
#include "link/ShownText.h"
#include "link/Snappy.h"

namespace vantrel {

WindowLock::WindowLock(PaneWindow& window) : window_(window) {
    window_.setLocked(true);
}

WindowLock::~WindowLock() {
    window_.setLocked(false);
}

CommandProgress::CommandProgress(const TransferServices& services, const std::string& title,
                                 std::string label, std::string place)
    : with_(services), label_(std::move(label)) {
    with_.progress.setTitle(title);
    with_.progress.setPlace(std::move(place));
    with_.progress.setCancelCaption(with_.messages.resourceMessage(message::resource::cancel));
    with_.progress.showCancelButton(true);
    with_.progress.showBar(true);
    with_.progress.step(label_, 0, 0, {});
    with_.progress.show(label_);
}

CommandProgress::~CommandProgress() {
    with_.progress.hide();
    with_.progress.setPlace({});
    with_.session.DisplayMonitor = true;
}

bool CommandProgress::next(const std::string& name, std::size_t item, std::size_t count) {
    with_.progress.step(label_ + shownText(name), static_cast<int>(item), static_cast<int>(count),
                        waitingText(with_.messages, std::int32_t(item), std::int32_t(count)));
    with_.progress.yield();
    return !isCancelled();
}

bool CommandProgress::isCancelled() const {
    return with_.progress.isCancelled();
}

} // namespace vantrel
