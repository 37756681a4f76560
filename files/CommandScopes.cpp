#include "files/CommandScopes.h"

#include "files/PaneWindow.h"
#include "files/Panes.h"
#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "link/ProgressPanel.h"
#include "link/ShownText.h"
#include "link/Snappy.h"

#include <chrono>
#include <cstdint>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace vantrel {

namespace {

/// Nothing unless all of them are known. As the pane shows them: nobody looks at the disk again.
std::vector<std::int64_t> sizesOf(const FolderListing& listing,
                                  const std::vector<std::string>& names) {
    std::unordered_map<std::string_view, std::int64_t> known;
    for (std::size_t entry = 0; entry < listing.Names.size(); ++entry)
        known.emplace(listing.Names[entry], listing.Sizes[entry]);
    std::vector<std::int64_t> sizes;
    for (const std::string& name : names) {
        const auto found = known.find(name);
        if (found == known.end() || found->second < 0)
            return {};
        sizes.push_back(found->second);
    }
    return sizes;
}

} // namespace

WindowLock::WindowLock(PaneWindow& window) : window_(window) {
    window_.setLocked(true);
}

WindowLock::~WindowLock() {
    window_.setLocked(false);
}

CommandProgress::CommandProgress(const TransferServices& services, const std::string& title,
                                 std::string label, std::string place)
    : with_(services), label_(std::move(label)), hasController_(!place.empty()) {
    with_.progress.setTitle(title);
    with_.progress.setPlace(std::move(place));
    with_.progress.setCancelCaption(with_.messages.resourceMessage(message::resource::cancel));
    with_.progress.showCancelButton(true);
    with_.progress.showBar(true);
    with_.progress.step(label_, 0, 0, {});
    with_.progress.show(label_);
}

CommandProgress::~CommandProgress() {
    with_.progress.setPace({}); // it asks the command, which is about to end
    with_.progress.hide();
    with_.progress.setPlace({});
    with_.session.DisplayMonitor = true;
}

bool CommandProgress::next(const std::string& name, std::size_t item, std::size_t count) {
    const auto state = hasController_ ? waitingText : itemText;
    with_.progress.step(label_ + shownText(name), static_cast<int>(item), static_cast<int>(count),
                        state(with_.messages, std::int32_t(item), std::int32_t(count)));
    with_.progress.yield();
    return !isCancelled();
}

bool CommandProgress::isCancelled() const {
    return with_.progress.isCancelled();
}

void CommandProgress::measure(const std::vector<std::string>& names, bool onPC,
                              TransferPace::Transferred wasTransferred) {
    auto sizes =
        onPC ? sizesOf(with_.panes.listing(ActiveSide::PC), names) : std::vector<std::int64_t>();
    pace_.emplace(std::move(sizes), std::move(wasTransferred));
    with_.progress.setPace(
        [this, files = names.size()](int item, int count, std::chrono::milliseconds worked) {
            // The reading of the directory, before the first file, is a step of its own.
            if (std::size_t(count) == files)
                pace_->reach(std::size_t(item), worked);
            else
                pace_->prepare(worked);
            return paceText(with_.messages, *pace_);
        });
}

} // namespace vantrel
