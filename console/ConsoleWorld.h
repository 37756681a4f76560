#pragma once

#include "console/Report.h"

#include <functional>
#include <optional>
#include <string>

namespace vantrel {

class Zurolink;

/// What surrounds a program without windows.
struct ConsoleWorld {
    std::string executable;    ///< the window program's own file, whose settings hold, absolute
    std::string workingFolder; ///< what relative folders of the arguments start from
    TextSink output;
    TextSink messages;
    TextSink relay = {};        ///< to the process that has started this one for a robot
    std::string program = {};   ///< this program's own file, absolute: it starts itself for a robot
    bool showsProgress = false; ///< the messages go to a terminal
    /// The next line that somebody types; without this nobody can be asked.
    std::function<std::optional<std::string>()> readLine = {};
    std::function<bool()> isInterrupted = [] { return false; };
    std::function<void*()> window = [] { return nullptr; }; ///< for the library
    Zurolink* library = nullptr; ///< in place of the one in the program's folder
};

/// Does what the arguments say and returns the program's exit code.
int runConsole(const std::vector<std::string>& arguments, const ConsoleWorld& world);

} // namespace vantrel
