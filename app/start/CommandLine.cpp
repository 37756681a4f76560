#include "app/start/CommandLine.h"

#include "base/Text.h"

#include <algorithm>

namespace vantrel {
namespace {

std::string joined(std::span<const std::string> arguments) {
    std::string line;
    for (const std::string& argument : arguments) {
        if (!line.empty())
            line += ' ';
        line += argument;
    }
    return line;
}

// A whole argument: a file name that happens to hold one of the words starts nothing.
bool isAutomationSwitch(const std::string& argument) {
    return equalsIgnoringAsciiCase(argument, "-Embedding") ||
           equalsIgnoringAsciiCase(argument, "/Automation");
}

} // namespace

CommandLine readCommandLine(std::span<const std::string> arguments) {
    return {.endsAtOnce = joined(arguments).find("/EXIT") != std::string::npos,
            .startedForAutomation = std::ranges::any_of(arguments, isAutomationSwitch)};
}

} // namespace vantrel
