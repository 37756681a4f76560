#include "support/TerminalProgram.h"

#include <array>
#include <csignal>
#include <cstdint>
#include <fstream>
#include <thread>

#include <gtest/gtest.h>
#include <poll.h>
#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

namespace vantrel::tests {
namespace {

constexpr int longTime = 120'000; ///< milliseconds without any sign of life
constexpr std::string_view interruptKey = "\x03";

} // namespace

// Nothing but a call of the system may stand between the fork and the new program.
TerminalProgram::TerminalProgram(const std::vector<std::string>& command) {
    std::vector<std::string> words = command;
    std::vector<char*> arguments;
    arguments.reserve(words.size() + 1);
    for (std::string& word : words)
        arguments.push_back(word.data());
    arguments.push_back(nullptr);
    process_ = ::forkpty(&terminal_, nullptr, nullptr, nullptr);
    if (process_ == 0) {
        ::execv(arguments.front(), arguments.data());
        ::_exit(127);
    }
    EXPECT_GT(process_, 0) << "no terminal";
}

TerminalProgram::~TerminalProgram() {
    if (process_ > 0) {
        ::kill(process_, SIGKILL);
        ::waitpid(process_, nullptr, 0);
    }
    if (terminal_ >= 0)
        ::close(terminal_);
}

/// False when the program has closed its end.
bool TerminalProgram::readMore() {
    pollfd output{.fd = terminal_, .events = POLLIN, .revents = 0};
    if (::poll(&output, 1, longTime) != 1) {
        ADD_FAILURE() << "nothing happens after: " << shown_;
        return false;
    }
    std::array<char, 4096> bytes{};
    const auto count = ::read(terminal_, bytes.data(), bytes.size());
    if (count <= 0)
        return false;
    shown_.append(bytes.data(), static_cast<std::size_t>(count));
    return true;
}

bool TerminalProgram::waitFor(std::string_view text) {
    while (true) {
        const auto found = shown_.find(text, seen_);
        if (found != shown_.npos) {
            seen_ = found + text.size();
            return true;
        }
        if (!readMore())
            return false;
    }
}

void TerminalProgram::type(std::string_view keys) const {
    EXPECT_EQ(::write(terminal_, keys.data(), keys.size()), static_cast<ssize_t>(keys.size()));
}

// The terminal sends the signal before it shows the key. A second one would be lost while the first
// is on its way.
bool TerminalProgram::interrupt() {
    type(interruptKey);
    if (!waitFor("^C"))
        return false;
    while (hasSignalPending())
        std::this_thread::yield();
    return true;
}

bool TerminalProgram::hasSignalPending() const {
    std::ifstream status("/proc/" + std::to_string(process_) + "/status");
    std::string key;
    std::uint64_t signals = 0;
    while (status >> key)
        if ((key == "SigPnd:" || key == "ShdPnd:") && status >> std::hex >> signals &&
            (signals >> (SIGINT - 1) & 1U) != 0)
            return true;
    return false;
}

int TerminalProgram::end() {
    while (readMore())
        ;
    int status = 0;
    ::waitpid(process_, &status, 0);
    process_ = -1;
    return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

} // namespace vantrel::tests
