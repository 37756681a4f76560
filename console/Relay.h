#pragma once

#include "console/ConsoleWorld.h"
#include "files/CommandResult.h"

#include <optional>
#include <string>
#include <string_view>

namespace vantrel {

/// What the process for one robot tells the one that has started it.
struct Relayed {
    enum class Kind {
        Output,  ///< a text for the output
        Message, ///< one for the messages
        Item,    ///< an item that was added to the tally
        End      ///< all is said
    };

    Kind kind = Kind::Output;
    std::string text = {};
    ItemEnd end = ItemEnd::Done;
    int code = 0; ///< the cause of an item's end, or the exit code

    bool operator==(const Relayed&) const = default;
};

/// A line for it, which begins a new one whatever was written before.
std::string relayLine(const Relayed& relayed);
/// Nothing for a line that is somebody else's.
std::optional<Relayed> readRelayLine(std::string_view line);

/// A world whose texts go to the process that has started this one, and where nobody sits.
ConsoleWorld relayingWorld(ConsoleWorld world);

} // namespace vantrel
