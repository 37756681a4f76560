#pragma once

#include <span>
#include <string>

namespace vantrel {

/// What the arguments of the program ask for; its own path is not among them.
struct CommandLine {
    bool endsAtOnce = false;           ///< "/EXIT" occurs anywhere, also inside a longer word
    bool startedForAutomation = false; ///< started by another program, so no window is shown
};

CommandLine readCommandLine(std::span<const std::string> arguments);

} // namespace vantrel
