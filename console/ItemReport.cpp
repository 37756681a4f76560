#include "console/ItemReport.h"

#include "app/start/Engine.h"
#include "console/ConsoleMessages.h"

namespace vantrel {
namespace {

const char* typeOf(CommandKind kind) {
    const bool isVariable =
        kind == CommandKind::SaveVariables || kind == CommandKind::LoadVariables;
    return isVariable ? "variable" : "file";
}

} // namespace

const char* endKey(ItemEnd end) {
    switch (end) {
    case ItemEnd::Done:
        return "done";
    case ItemEnd::Skipped:
        return "skipped";
    case ItemEnd::Failed:
        return "failed";
    case ItemEnd::NotTried:
        break;
    }
    return "not-tried";
}

void ItemReport::add(const ItemResult& item, int cause) {
    desk_.tally.add(item.end, cause);
    const std::string reason = shownReason(item);
    std::vector<std::string> cells{machine_.name(), item.name, endWord(item.end)};
    if (!reason.empty())
        cells.push_back(reason);
    desk_.report.line(cells, typeOf(kind_),
                      {{"robot", machine_.name()},
                       {"name", item.row},
                       {"transferred_as", item.name},
                       {"end", endKey(item.end)},
                       {"reason", reason},
                       {"dry_run", desk_.request.dryRun}});
}

void ItemReport::addAll(const std::vector<std::string>& names, ItemEnd end,
                        const std::string& reason, int cause) {
    for (const std::string& name : names)
        add({name, name, end, reason}, cause);
}

std::vector<std::string> ItemReport::addResult(const CommandResult& result, int cause) {
    std::vector<std::string> rest;
    for (const ItemResult& item : result.items)
        if (item.end == ItemEnd::NotTried)
            rest.push_back(item.row);
    // Without a link the rest would come to the same.
    const bool goesOn = desk_.request.keepGoing && cause == exit_code::nothingDone &&
                        rest.size() < result.items.size() && !desk_.world.isInterrupted();
    for (const ItemResult& item : result.items)
        if (item.end != ItemEnd::NotTried || !goesOn)
            add(item, cause);
    if (!goesOn)
        rest.clear();
    return rest;
}

bool ItemReport::readController(const std::vector<std::string>& names) {
    if (machine_.readController())
        return true;
    const bool isCancelled = desk_.world.isInterrupted();
    addAll(names, isCancelled ? ItemEnd::NotTried : ItemEnd::Failed,
           isCancelled ? std::string() : machine_.reason(), causeOf(desk_.engine.session));
    return false;
}

/// Nobody was asked where a rule gave the answer.
std::string ItemReport::shownReason(const ItemResult& item) const {
    const bool isRule = item.reason == text(message::resultKept) &&
                        desk_.request.overwrite == OverwritePolicy::Never;
    return isRule ? text(message::consoleKept) : item.reason;
}

std::string ItemReport::endWord(ItemEnd end) const {
    if (desk_.request.dryRun && end == ItemEnd::Done)
        return text(message::consoleWouldBeDone);
    return endText(desk_.engine.messages, CommandResult{.kind = kind_}, end);
}

std::string ItemReport::text(std::int32_t number) const {
    return desk_.engine.messages.getMessage(number);
}

} // namespace vantrel
