#include "app/commands/CommandRunner.h"

#include "app/commands/MainCommands.h"

#include <algorithm>

namespace vantrel {

void CommandRunner::run(const CommandRow& command, CommandPlace place) const {
    if (place == CommandPlace::tlbFile)
        to_.main.workIn(ActiveSide::Controller);
    command.run(to_);
}

bool CommandRunner::listKey(ActiveSide side, int code, bool withControl) const {
    to_.main.activate(side);
    for (const CommandRow& command : table_) {
        const ListKey& key = command.listKey;
        const bool isPressed = key.code != 0 && key.code == code &&
                               (withControl || !key.withControl) &&
                               (side == ActiveSide::PC || !key.onPCOnly);
        if (isPressed && runIfOffered(command))
            return true;
    }
    return false;
}

const CommandRow* CommandRunner::commandOf(std::string_view key) const {
    const auto command = std::ranges::find(table_, key, &CommandRow::key);
    return command == table_.end() ? nullptr : &*command;
}

bool CommandRunner::runIfOffered(const CommandRow& command) const {
    if (!commandState(command, command.offers.front().place, to_.main.input()).enabled)
        return false;
    command.run(to_);
    return true;
}

} // namespace vantrel
