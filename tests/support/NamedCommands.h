#pragma once

#include "app/commands/Commands.h"

#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// Commands by the names that an operator's manual or a layout would give them: a menu entry's own,
// or a tool bar's and its button's, as in "tlbMain FileCopy".

namespace vantrel::tests {

inline constexpr std::pair<std::string_view, CommandPlace> toolBarNames[] = {
    {"tlbMain", CommandPlace::tlbMain},
    {"tlbPC", CommandPlace::tlbPC},
    {"tlbFile", CommandPlace::tlbFile},
    {"tlbPCButton", CommandPlace::tlbPCButton},
    {"tlbCtrlButton", CommandPlace::tlbCtrlButton}};

inline bool isNamed(const CommandRow& command, const CommandOffer& offer, std::string_view name) {
    for (const auto& [bar, place] : toolBarNames)
        if (offer.place == place)
            return name == std::string(bar) + " " + std::string(command.icon);
    return offer.name == name;
}

/// The command and where it is offered under this name.
inline std::pair<const CommandRow*, CommandPlace>
commandNamed(std::string_view name, std::span<const CommandRow> table = commandTable()) {
    for (const CommandRow& command : table)
        for (const CommandOffer& offer : command.offers)
            if (isNamed(command, offer, name))
                return {&command, offer.place};
    throw std::runtime_error("no such command: " + std::string(name));
}

inline CommandState stateOf(std::string_view name, const CommandInput& input) {
    const auto [command, place] = commandNamed(name);
    return commandState(*command, place, input);
}

/// The name of every menu entry, with the number of its caption.
inline std::vector<std::pair<std::string, std::int32_t>> menuEntries() {
    std::vector<std::pair<std::string, std::int32_t>> entries;
    for (const CommandRow& command : commandTable())
        for (const CommandOffer& offer : command.offers)
            if (!isToolBar(offer.place) && offer.place != CommandPlace::stsFileInf)
                entries.emplace_back(offer.name, command.caption);
    return entries;
}

} // namespace vantrel::tests
