#include "app/CommandRunner.h"

#include "app/MainCommands.h"

namespace vantrel {

void CommandRunner::run(const CommandRow& command, CommandPlace place) const {
    if (place == CommandPlace::tlbFile)
        to_.main.workIn(ActiveSide::Controller);
    command.run(to_);
}

bool CommandRunner::listKey(ActiveSide side, int code, bool withControl) const {
    to_.main.activate(side);
    const CommandInput input = to_.main.input();
    for (const CommandRow& command : table_) {
        const ListKey& key = command.listKey;
        const bool isPressed = key.code != 0 && key.code == code &&
                               (withControl || !key.withControl) &&
                               (side == ActiveSide::PC || !key.onPCOnly);
        if (!isPressed || !commandState(command, CommandPlace::mnuFileMain, input).enabled)
            continue;
        command.run(to_);
        return true;
    }
    return false;
}

} // namespace vantrel
