#include "platform/Descriptor_posix.h"
#include "platform/Terminal.h"

#include <csignal>

#include <poll.h>
#include <unistd.h>

namespace vantrel {
namespace {

int descriptorOf(TextStream::Kind kind) {
    return kind == TextStream::Kind::Output ? STDOUT_FILENO : STDERR_FILENO;
}

/// False when the waiting was called off. A signal ends it, as a console of the other system does
/// it; a reading would begin anew. Until the waiting begins signals wait too, so that none is
/// missed.
bool isLineTyped(const std::function<bool()>& isCalledOff) {
    sigset_t ending, before;
    ::sigemptyset(&ending);
    ::sigaddset(&ending, SIGINT);
    ::sigaddset(&ending, SIGTERM);
    ::pthread_sigmask(SIG_BLOCK, &ending, &before);
    pollfd input{.fd = STDIN_FILENO, .events = POLLIN, .revents = 0};
    const bool isTyped = !isCalledOff() && ::ppoll(&input, 1, nullptr, &before) == 1;
    ::pthread_sigmask(SIG_SETMASK, &before, nullptr);
    return isTyped;
}

} // namespace

std::vector<std::string> programArguments(int count, char** values) {
    return count > 1 ? std::vector<std::string>(values + 1, values + count)
                     : std::vector<std::string>();
}

bool TextStream::isTerminal() const {
    return ::isatty(descriptorOf(kind_)) == 1;
}

Outcome TextStream::write(std::string_view text) {
    const int error = writeAll(descriptorOf(kind_), text);
    if (error != 0)
        return systemFailure(error);
    return Done{};
}

bool canReadTerminal() {
    return ::isatty(STDIN_FILENO) == 1;
}

// Unbuffered: what follows the line is somebody else's to read.
std::optional<std::string> readTerminalLine(const std::function<bool()>& isCalledOff) {
    if (!isLineTyped(isCalledOff))
        return std::nullopt;
    std::string line;
    char character = 0;
    while (true) {
        const auto count = ::read(STDIN_FILENO, &character, 1);
        if (count != 1)
            return std::nullopt;
        if (character == '\n')
            return line;
        line += character;
    }
}

void* unseenWindow() {
    return nullptr;
}

} // namespace vantrel
