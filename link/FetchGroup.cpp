#include "link/FetchGroup.h"

#include "base/PathRules.h"
#include "link/FetchFiles.h"
#include "link/InterruptedFetches.h"
#include "platform/Files.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace vantrel {
namespace {

/// How long files that have arrived may wait for the disk.
constexpr std::chrono::milliseconds longestWait{2000};
/// A mark for one alone saves nothing.
constexpr std::size_t fewestFiles = 2;

} // namespace

void FetchGroup::begin(const std::string& folder, const std::vector<std::string>& entries,
                       Choice mayAnnounce) {
    folder_ = folder;
    entries_ = &entries;
    mayAnnounce_ = std::move(mayAnnounce);
    next_ = 0;
}

void FetchGroup::end() {
    entries_ = nullptr;
    mayAnnounce_ = {};
}

// A file may have come since it was announced.
bool FetchGroup::takes(std::int32_t index) {
    const auto place = static_cast<std::size_t>(index);
    if (!entries_ || place >= entries_->size())
        return false;
    const std::string& name = (*entries_)[place];
    return isNew(name) && (held_ || announce(place)) && mark_.isOpen(name);
}

bool FetchGroup::announce(std::size_t index) {
    if (index < next_)
        return false;
    GroupMark mark = announcement(index);
    if (mark.files.size() < fewestFiles)
        return false;
    interrupted_.beginGroup(folder_);
    if (!setMark(mark)) {
        interrupted_.endGroup();
        // Whoever else is at work here may be for long.
        next_ = index + GroupMark::mostFiles;
        return false;
    }
    mark_ = std::move(mark);
    begun_ = files_.clock();
    isBroken_ = false;
    return true;
}

GroupMark FetchGroup::announcement(std::size_t index) {
    constexpr std::size_t farthest = 10 * GroupMark::mostFiles;
    const std::size_t end = std::min(entries_->size(), index + farthest);
    GroupMark mark;
    for (std::size_t at = index; at < end && mark.files.size() < GroupMark::mostFiles; ++at) {
        const std::string& name = (*entries_)[at];
        if (!isNew(name) || !mayAnnounce_(name) || mark.find(name))
            continue;
        mark.files.push_back({.name = name});
        last_ = static_cast<std::int32_t>(at);
    }
    return mark;
}

// What another mark tells of is no new file.
bool FetchGroup::isNew(const std::string& name) const {
    return PathRules::isPlainName(name) && !FetchMark::isFileName(name) &&
           !anythingExists(pathOf(name)) && !anythingExists(pathOf(FetchMark::fileNameFor(name)));
}

// One that is there tells of an older transfer, or of another program's.
bool FetchGroup::setMark(const GroupMark& mark) {
    auto held = files_.holdReadable(pathOf(GroupMark::fileName()));
    if (!held)
        return false;
    const auto before = held->read();
    if (!before || !GroupMark::isTorn(*before))
        return false;
    if (!files_.isHeldAlone(*held) || !files_.write(*held, mark.format())) {
        dropMark(*held);
        return false;
    }
    held_ = std::move(*held);
    return true;
}

// One that stays in spite of all tells at least what has arrived.
void FetchGroup::dropMark(HeldFile& held) {
    if (!files_.remove(held) && !files_.write(held, {}))
        static_cast<void>(files_.flush(held));
}

void FetchGroup::hasArrived(std::int32_t index, std::string_view content) {
    const auto* const announced = mark_.find((*entries_)[static_cast<std::size_t>(index)]);
    const auto place = static_cast<std::size_t>(announced - mark_.files.data());
    GroupMark::File& file = mark_.files[place];
    file.arrived = KnownContent::of(content);
    arrived_.push_back({index, &file});
    isBroken_ = !files_.append(*held_, GroupMark::arrivedLine(place, *file.arrived));
}

// The clock is asked only while files wait for the disk.
bool FetchGroup::isDue(std::int32_t index) const {
    return held_ && (isBroken_ || index > last_ || files_.clock() - begun_ >= longestWait);
}

// The mark goes last: with it, what is on the disk could be taken for a part. Its going is on the
// disk too: files that it announced and that never came may be somebody else's by the next look.
std::vector<FetchGroup::Lost> FetchGroup::settle() {
    if (!held_)
        return {};
    std::vector<std::string> names;
    for (const Arrival& arrival : arrived_)
        names.push_back(arrival.file->name);
    const auto failed = names.empty() ? names : files_.flushAll(folder_, names);
    std::vector<Lost> lost;
    for (const Arrival& arrival : arrived_)
        if (std::ranges::find(failed, arrival.file->name) != failed.end())
            lost.push_back({arrival.index, arrival.file->name, !remove(*arrival.file)});
    dropMark(*held_);
    held_.reset();
    arrived_.clear();
    interrupted_.endGroup();
    if (isBroken_)
        next_ = std::numeric_limits<std::size_t>::max();
    return lost;
}

// What somebody has saved under its name meanwhile is his.
bool FetchGroup::remove(const GroupMark::File& file) {
    const std::string path = pathOf(file.name);
    if (!anythingExists(path))
        return true;
    const auto content = readFile(path);
    const bool isOthers = content && KnownContent::of(*content) != *file.arrived;
    return !isOthers && files_.remove(path);
}

std::string FetchGroup::pathOf(const std::string& name) const {
    return PathRules().join(folder_, name);
}

} // namespace vantrel
