#include "files/CommandResult.h"

#include "base/Text.h"
#include "files/ControllerPlace.h"
#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace vantrel {
namespace {

std::int32_t doneText(CommandKind kind) {
    switch (kind) {
    case CommandKind::SendCopy:
    case CommandKind::LoadJobs:
    case CommandKind::LoadVariables:
        return message::resultSent;
    case CommandKind::ReceiveCopy:
    case CommandKind::SaveJobs:
    case CommandKind::SaveVariables:
        return message::resultReceived;
    case CommandKind::SendMove:
    case CommandKind::ReceiveMove:
        return message::resultMoved;
    case CommandKind::CopyIntoFolder:
        return message::resultCopied;
    case CommandKind::DeleteOnController:
    case CommandKind::DeleteOnPC:
        break;
    }
    return message::resultDeleted;
}

std::int32_t textOf(const CommandResult& result, ItemEnd end) {
    switch (end) {
    case ItemEnd::Done:
        return doneText(result.kind);
    case ItemEnd::Skipped:
        return message::resultSkipped;
    case ItemEnd::Failed:
        return message::resultFailed;
    case ItemEnd::NotTried:
        break;
    }
    return message::resultNotTried;
}

} // namespace

std::size_t CommandResult::count(ItemEnd end) const {
    return static_cast<std::size_t>(std::ranges::count(items, end, &ItemResult::end));
}

std::vector<std::string> CommandResult::openRows() const {
    std::vector<std::string> rows;
    for (const ItemResult& item : items)
        if (item.end == ItemEnd::Failed || item.end == ItemEnd::NotTried)
            rows.push_back(item.row);
    return rows;
}

std::string endText(const MessageTable& messages, const CommandResult& result, ItemEnd end) {
    return messages.getMessage(textOf(result, end));
}

std::string resultLine(const MessageTable& messages, const CommandResult& result) {
    std::vector<std::string> parts;
    for (const ItemEnd end :
         {ItemEnd::Done, ItemEnd::Skipped, ItemEnd::Failed, ItemEnd::NotTried}) {
        const std::size_t count = result.count(end);
        if (end != ItemEnd::NotTried || count > 0)
            parts.push_back(messages.getMessageWithInsertion(
                message::resultCount, std::to_string(count), endText(messages, result, end)));
    }
    if (result.cancelled)
        parts.push_back(messages.getMessage(message::resultCancelled));
    std::string line;
    for (const std::string& part : parts)
        line += (line.empty() ? "" : messages.getMessage(message::resultJoint)) + part;
    return line;
}

ActiveSide sourceOf(CommandKind kind) {
    switch (kind) {
    case CommandKind::ReceiveCopy:
    case CommandKind::ReceiveMove:
    case CommandKind::SaveJobs:
    case CommandKind::SaveVariables:
    case CommandKind::DeleteOnController:
        return ActiveSide::Controller;
    case CommandKind::SendCopy:
    case CommandKind::SendMove:
    case CommandKind::LoadJobs:
    case CommandKind::LoadVariables:
    case CommandKind::DeleteOnPC:
    case CommandKind::CopyIntoFolder:
        break;
    }
    return ActiveSide::PC;
}

std::string placeOf(CommandKind kind, const ApplicationState& state) {
    if (kind == CommandKind::DeleteOnPC || kind == CommandKind::CopyIntoFolder)
        return {};
    const bool comes =
        sourceOf(kind) == ActiveSide::Controller && kind != CommandKind::DeleteOnController;
    return comes ? fromController(state) : towardController(state);
}

void ResultLog::begin(CommandKind kind, std::string place, std::string folder,
                      const std::vector<std::string>& rows, bool JBR) {
    running_ = {.kind = kind, .place = std::move(place), .folder = std::move(folder), .JBR = JBR};
    places_.clear();
    for (const std::string& row : rows) {
        places_[row].push_back(running_->items.size());
        running_->items.push_back({row, row});
    }
}

void ResultLog::rename(std::size_t item, const std::string& name) {
    if (!running_ || item >= running_->items.size())
        return;
    std::erase(places_[running_->items[item].name], item);
    running_->items[item].name = name;
    places_[name].push_back(item);
}

void ResultLog::note(const std::string& name, ItemEnd end, const std::string& reason) {
    ItemResult* const item = itemFor(name, end);
    if (!item)
        return;
    item->reason = trimmed(reason);
    if (item->end != ItemEnd::Done || end != ItemEnd::Skipped)
        item->end = end;
}

/// One that failed and waits for its reason, else the first that nothing is known of, else the last
/// one, whose end turns out to be another.
ItemResult* ResultLog::itemFor(const std::string& name, ItemEnd end) {
    const auto found = places_.find(name);
    if (!running_ || found == places_.end() || found->second.empty())
        return nullptr;
    ItemResult* untried = nullptr;
    for (const std::size_t place : found->second) {
        ItemResult& item = running_->items[place];
        if (end == ItemEnd::Failed && item.end == ItemEnd::Failed && item.reason.empty())
            return &item;
        if (!untried && item.end == ItemEnd::NotTried)
            untried = &item;
    }
    return untried ? untried : &running_->items[found->second.back()];
}

void ResultLog::noteUntried(const std::string& reason) {
    if (!running_)
        return;
    for (ItemResult& item : running_->items)
        if (item.end == ItemEnd::NotTried)
            item.reason = trimmed(reason);
}

void ResultLog::end(bool cancelled) {
    if (!running_)
        return;
    running_->cancelled = cancelled;
    last_ = std::exchange(running_, std::nullopt);
    places_.clear();
}

} // namespace vantrel
