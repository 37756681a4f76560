#include "platform/ChildProcess.h"
#include "platform/Descriptor_posix.h"

#include <array>
#include <csignal>

#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/wait.h>

namespace vantrel {

struct ChildProcess::Running {
    pid_t process;
    Descriptor output;
    bool isAtEnd = false;
    std::optional<int> status{}; ///< as the system gives it, once it has ended

    Running(pid_t started, Descriptor reading) : process(started), output(std::move(reading)) {}
    Running(const Running&) = delete;
    Running& operator=(const Running&) = delete;
    ~Running() {
        if (status)
            return;
        ::kill(process, SIGKILL);
        wait();
    }

    void wait() {
        int given = 0;
        while (!status) {
            const pid_t waited = ::waitpid(process, &given, 0);
            if (waited == process)
                status = given;
            else if (errno != EINTR)
                status = SIGKILL; // somebody else has waited for it
        }
    }
};

namespace {

struct Pipe {
    Descriptor reading;
    Descriptor writing;
};

Result<Pipe> makePipe() {
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0)
        return systemFailure(errno);
    return Pipe{Descriptor(ends[0]), Descriptor(ends[1])};
}

struct Prepared {
    char* const* arguments;
    const char* folder;
    int output;
    int input;
    int report;
    pid_t parent;
};

/// In the child, between fork and exec: nothing here may allocate. It has a group of its own, so
/// that an interruption at the keyboard reaches it once, from this program, and not twice.
[[noreturn]] void become(const Prepared& prepared) {
    ::setpgid(0, 0);
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    sigset_t none;
    ::sigemptyset(&none);
    ::sigprocmask(SIG_SETMASK, &none, nullptr);
    const bool isReady = ::getppid() == prepared.parent &&
                         ::dup2(prepared.input, STDIN_FILENO) >= 0 &&
                         ::dup2(prepared.output, STDOUT_FILENO) >= 0 &&
                         (*prepared.folder == '\0' || ::chdir(prepared.folder) == 0);
    if (isReady)
        ::execv(prepared.arguments[0], prepared.arguments);
    const int error = errno;
    static_cast<void>(!::write(prepared.report, &error, sizeof error));
    ::_exit(127);
}

/// The error number that the child reported before it became the program; 0 when there was none.
int reportedError(const Descriptor& report) {
    int error = 0;
    ssize_t count = 0;
    do {
        count = ::read(report.number(), &error, sizeof error);
    } while (count < 0 && errno == EINTR);
    return count == static_cast<ssize_t>(sizeof error) ? error : 0;
}

} // namespace

ChildProcess::ChildProcess(std::unique_ptr<Running> running) : running_(std::move(running)) {}
ChildProcess::ChildProcess(ChildProcess&&) noexcept = default;
ChildProcess& ChildProcess::operator=(ChildProcess&&) noexcept = default;
ChildProcess::~ChildProcess() = default;

Result<ChildProcess> ChildProcess::start(const Start& start) {
    std::vector<std::string> texts = start.arguments;
    texts.insert(texts.begin(), start.program);
    std::vector<char*> arguments;
    for (std::string& text : texts)
        arguments.push_back(text.data());
    arguments.push_back(nullptr);
    auto output = makePipe();
    auto report = makePipe();
    const Descriptor input(::open("/dev/null", O_RDONLY | O_CLOEXEC));
    if (!output || !report)
        return Failure{!output ? output.reason() : report.reason()};
    if (!input.isOpen() || ::fcntl(output->reading.number(), F_SETFL, O_NONBLOCK) != 0)
        return systemFailure(errno);
    const Prepared prepared{arguments.data(), start.folder.c_str(),     output->writing.number(),
                            input.number(),   report->writing.number(), ::getpid()};
    const pid_t process = ::fork();
    if (process < 0)
        return systemFailure(errno);
    if (process == 0)
        become(prepared);
    ChildProcess child(std::make_unique<Running>(process, std::move(output->reading)));
    report->writing.close();
    if (const int error = reportedError(report->reading); error != 0)
        return systemFailure(error);
    return child;
}

void ChildProcess::wait(std::span<ChildProcess* const> children, std::chrono::milliseconds atMost) {
    std::vector<pollfd> watched;
    watched.reserve(children.size());
    for (const ChildProcess* child : children)
        watched.push_back({child->running_->output.number(), POLLIN, 0});
    static_cast<void>(::poll(watched.data(), watched.size(), static_cast<int>(atMost.count())));
}

std::string ChildProcess::read() {
    constexpr std::size_t most = 65536;
    std::string bytes(most, '\0');
    const auto count = ::read(running_->output.number(), bytes.data(), bytes.size());
    if (count < 0 && (errno == EAGAIN || errno == EINTR))
        return {};
    running_->isAtEnd = count <= 0;
    bytes.resize(count > 0 ? static_cast<std::size_t>(count) : 0);
    return bytes;
}

bool ChildProcess::isAtEnd() const {
    return running_->isAtEnd;
}

void ChildProcess::interrupt() {
    if (!running_->status)
        ::kill(running_->process, SIGTERM);
}

void ChildProcess::kill() {
    if (!running_->status)
        ::kill(running_->process, SIGKILL);
}

std::optional<int> ChildProcess::exitCode() {
    running_->wait();
    const int status = *running_->status;
    return WIFEXITED(status) ? std::optional(WEXITSTATUS(status)) : std::nullopt;
}

} // namespace vantrel
