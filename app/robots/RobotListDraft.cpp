#include "app/robots/RobotListDraft.h"

#include "app/robots/RobotFile.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <utility>

namespace vantrel {
namespace {

/// The place of the current robot is kept in 16 bits.
constexpr std::size_t mostRobots = std::numeric_limits<std::int16_t>::max();

} // namespace

RobotListDraft::RobotListDraft(const std::vector<RobotRecord>& robots, int current,
                               RobotRecord fresh)
    : fresh_(std::move(fresh)) {
    const auto count = static_cast<std::ptrdiff_t>(robotCount(robots));
    stored_.assign(robots.begin(), robots.begin() + count);
    for (const RobotRecord& robot : stored_)
        entries_.push_back({++lastIdentity_, robot, robot});
    if (entries_.empty())
        return;
    selected_ = current >= 0 && current < count ? static_cast<std::size_t>(current) : 0;
    current_ = entries_[*selected_].identity;
}

const RobotRecord& RobotListDraft::selectedRobot() const {
    static const RobotRecord none;
    return selected_ ? entries_[*selected_].robot : none;
}

void RobotListDraft::select(std::size_t index) {
    if (index < entries_.size())
        selected_ = index;
}

void RobotListDraft::insertAfter() {
    insert(selected_ ? *selected_ + 1 : 0);
}

void RobotListDraft::insertBefore() {
    insert(selected_.value_or(0));
}

void RobotListDraft::insert(std::size_t index) {
    if (entries_.size() >= mostRobots)
        return;
    entries_.insert(entries_.begin() + static_cast<std::ptrdiff_t>(index),
                    {++lastIdentity_, fresh_, fresh_, true});
    selected_ = index;
    edited_ = true;
}

void RobotListDraft::remove() {
    if (!selected_)
        return;
    const bool wasCurrent = entries_[*selected_].identity == current_;
    entries_.erase(entries_.begin() + static_cast<std::ptrdiff_t>(*selected_));
    edited_ = true;
    if (entries_.empty())
        selected_.reset();
    else
        selected_ = std::min(*selected_, entries_.size() - 1);
    if (wasCurrent)
        current_ = selected_ ? entries_[*selected_].identity : 0;
}

RobotRecord* RobotListDraft::edit() {
    if (!selected_)
        return nullptr;
    edited_ = true;
    return &entries_[*selected_].robot;
}

void RobotListDraft::rename(const std::string& name) {
    if (auto* const robot = edit())
        robot->Name = name;
}

TypedPart RobotListDraft::setAddressPart(std::size_t part, const std::string& text) {
    TypedPart typed = typedAddressPart(text);
    if (part >= addressParts.size())
        return typed;
    if (auto* const robot = edit()) {
        robot->*addressParts[part] = typed.text;
        robot->IPaddr = joinedAddress(*robot);
    }
    return typed;
}

void RobotListDraft::setFolder(const std::string& path) {
    if (selectedRobot().Path == path)
        return;
    if (auto* const robot = edit())
        robot->Path = path;
}

void RobotListDraft::setMark(const std::string& colour, const std::string& label) {
    if (selectedRobot().Colour == colour && selectedRobot().Label == label)
        return;
    if (auto* const robot = edit()) {
        robot->Colour = colour;
        robot->Label = label;
    }
}

bool RobotListDraft::isChanged() const {
    return !std::ranges::equal(entries_, stored_, {}, &RobotEntry::robot);
}

std::optional<std::size_t> RobotListDraft::placeOf(int identity) const {
    const auto found = std::ranges::find(entries_, identity, &RobotEntry::identity);
    if (found == entries_.end())
        return std::nullopt;
    return static_cast<std::size_t>(found - entries_.begin());
}

std::optional<std::size_t> RobotListDraft::current() const {
    if (entries_.empty())
        return std::nullopt;
    return placeOf(current_).value_or(0);
}

std::vector<RobotRecord> RobotListDraft::records() const {
    std::vector<RobotRecord> records;
    records.reserve(entries_.size() + 1);
    for (const RobotEntry& entry : entries_) {
        records.push_back(entry.robot);
        if (entry.isEdited())
            tidyAddress(records.back());
    }
    records.push_back(emptyRobotList().front());
    return records;
}

void RobotListDraft::noteApplied() {
    const auto place = current();
    current_ = place ? entries_[*place].identity : 0;
    stored_ = records();
    stored_.pop_back();
    for (std::size_t index = 0; index < entries_.size(); ++index) {
        entries_[index].robot = entries_[index].stored = stored_[index];
        entries_[index].isNew = false;
    }
    edited_ = false;
}

} // namespace vantrel
