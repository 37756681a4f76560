#include "app/commands/CommandRunner.h"

#include "app/commands/MainCommands.h"

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
    const CommandRow* found = nullptr;
    for (const CommandRow& command : table_) {
        if (command.key != key)
            continue;
        if (isOffered(command))
            return &command;
        if (!found)
            found = &command;
    }
    return found;
}

bool CommandRunner::isOffered(const CommandRow& command) const {
    return commandState(command, command.offers.front().place, to_.main.input()).enabled;
}

bool CommandRunner::runIfOffered(const CommandRow& command) const {
    if (!isOffered(command))
        return false;
    command.run(to_);
    return true;
}

} // namespace vantrel
