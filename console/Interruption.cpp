#include "console/Interruption.h"

#include "console/Tally.h"

#include <atomic>
#include <csignal>
#include <cstdlib>

namespace vantrel {
namespace {

/// A handler is given nothing, so what it notes has to be known by name.
std::atomic<bool>& wanted() {
    static std::atomic<bool> isWanted{false};
    return isWanted;
}

extern "C" void noteInterruption(int signal) {
    if (wanted().exchange(true))
        std::_Exit(exit_code::interrupted);
    std::signal(signal, noteInterruption); // some systems forget it with each call
}

} // namespace

void Interruption::watch() {
    wanted() = false;
    std::signal(SIGINT, noteInterruption);
    std::signal(SIGTERM, noteInterruption);
}

bool Interruption::isWanted() {
    return wanted();
}

} // namespace vantrel
