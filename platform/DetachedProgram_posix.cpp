#include "platform/DetachedProgram_posix.h"

#include "base/Text.h"
#include "platform/Descriptor_posix.h"
#include "platform/Files.h"

#include <array>
#include <csignal>
#include <cstdlib>

#include <fcntl.h>
#include <sys/wait.h>

namespace vantrel {

namespace {

std::string findProgram(const std::string& program) {
    const char* path = std::getenv("PATH");
    for (const auto folder : split(path ? path : "/usr/local/bin:/usr/bin:/bin", ':')) {
        std::string candidate = std::string(folder) + '/' + program;
        if (folder.starts_with('/') && isRegularFile(candidate) &&
            ::access(candidate.c_str(), X_OK) == 0)
            return candidate;
    }
    return {};
}

void tell(int descriptor, int error) {
    static_cast<void>(!::write(descriptor, &error, sizeof error));
}

/// In the child, between fork and exec: nothing here may allocate, since another thread may have
/// held the allocator's lock. The program is a grandchild, so that the system's first process
/// takes care of its end; the pipe closes by itself when it runs.
[[noreturn]] void runAsGrandchild(char* const* arguments, int report) {
    ::setsid();
    const pid_t grandchild = ::fork();
    if (grandchild != 0) {
        if (grandchild < 0)
            tell(report, errno);
        ::_exit(0);
    }
    sigset_t none;
    ::sigemptyset(&none);
    ::sigprocmask(SIG_SETMASK, &none, nullptr);
    ::execv(arguments[0], arguments);
    tell(report, errno);
    ::_exit(127);
}

void waitFor(pid_t child) {
    while (::waitpid(child, nullptr, 0) < 0 && errno == EINTR) {
    }
}

/// The error number that the children reported; 0 when they had none.
int reportedError(int descriptor) {
    int error = 0;
    ssize_t count = 0;
    do {
        count = ::read(descriptor, &error, sizeof error);
    } while (count < 0 && errno == EINTR);
    return count == static_cast<ssize_t>(sizeof error) ? error : 0;
}

} // namespace

Outcome startDetached(const std::string& program, const std::string& argument) {
    std::string file = findProgram(program);
    if (file.empty())
        return Failure{program + ": " + systemFailure(ENOENT).reason};
    std::string text = argument;
    const std::array<char*, 3> arguments{file.data(), text.data(), nullptr};
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0)
        return systemFailure(errno);
    const Descriptor reading(ends[0]);
    Descriptor writing(ends[1]);
    const pid_t child = ::fork();
    if (child < 0)
        return systemFailure(errno);
    if (child == 0)
        runAsGrandchild(arguments.data(), writing.number());
    writing.close();
    const int error = reportedError(reading.number());
    waitFor(child);
    if (error != 0)
        return Failure{program + ": " + systemFailure(error).reason};
    return Done{};
}

} // namespace vantrel
