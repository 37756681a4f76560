#include "platform/ChildProcess.h"
#include "platform/System_windows.h"

#include <algorithm>

namespace vantrel {

struct ChildProcess::Running {
    Handle job;
    Handle process;
    Handle output;
    bool isAtEnd = false;
    bool isKilled = false;

    Running(Handle itsJob, Handle itself, Handle reading)
        : job(std::move(itsJob)), process(std::move(itself)), output(std::move(reading)) {}
    Running(const Running&) = delete;
    Running& operator=(const Running&) = delete;
    void kill() {
        isKilled = true;
        constexpr UINT code = 1;
        if (!::TerminateJobObject(job.get(), code))
            ::TerminateProcess(process.get(), code);
    }

    ~Running() {
        if (process.isOpen() && ::WaitForSingleObject(process.get(), 0) == WAIT_TIMEOUT)
            kill();
    }
};

namespace {

/// So that the program's own reading of its command line gives the argument back.
void append(std::wstring& line, const std::string& argument) {
    line += line.empty() ? L"\"" : L" \"";
    std::size_t backslashes = 0;
    for (const wchar_t character : wide(argument)) {
        if (character == L'"')
            line.append(backslashes + 1, L'\\');
        backslashes = character == L'\\' ? backslashes + 1 : 0;
        line += character;
    }
    line.append(backslashes, L'\\');
    line += L'"';
}

std::wstring commandLine(const ChildProcess::Start& start) {
    std::wstring line;
    append(line, start.program);
    for (const std::string& argument : start.arguments)
        append(line, argument);
    return line;
}

/// Whatever is in it ends with its last handle, which is this program's.
Handle jobThatEndsWithUs() {
    Handle job(::CreateJobObjectW(nullptr, nullptr));
    JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits{};
    limits.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE;
    ::SetInformationJobObject(job.get(), JobObjectExtendedLimitInformation, &limits, sizeof limits);
    return job;
}

SECURITY_ATTRIBUTES inheritable() {
    return {sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
}

bool hasOutput(HANDLE pipe) {
    DWORD available = 0;
    return !::PeekNamedPipe(pipe, nullptr, 0, nullptr, &available, nullptr) || available > 0;
}

} // namespace

ChildProcess::ChildProcess(std::unique_ptr<Running> running) : running_(std::move(running)) {}
ChildProcess::ChildProcess(ChildProcess&&) noexcept = default;
ChildProcess& ChildProcess::operator=(ChildProcess&&) noexcept = default;
ChildProcess::~ChildProcess() = default;

Result<ChildProcess> ChildProcess::start(const Start& start) {
    if (hasNul(start.program) || hasNul(start.folder))
        return systemFailure(ERROR_INVALID_NAME);
    SECURITY_ATTRIBUTES shared = inheritable();
    HANDLE reading = nullptr;
    HANDLE writing = nullptr;
    if (!::CreatePipe(&reading, &writing, &shared, 0))
        return lastFailure();
    Handle output(reading);
    const Handle written(writing);
    ::SetHandleInformation(output.get(), HANDLE_FLAG_INHERIT, 0);
    const Handle input(::CreateFileW(L"NUL", GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                     &shared, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    STARTUPINFOW how{};
    how.cb = sizeof how;
    how.dwFlags = STARTF_USESTDHANDLES;
    how.hStdInput = input.get();
    how.hStdOutput = written.get();
    how.hStdError = ::GetStdHandle(STD_ERROR_HANDLE);
    std::wstring line = commandLine(start);
    const std::wstring folder = wide(start.folder);
    PROCESS_INFORMATION started{};
    if (!::CreateProcessW(wide(start.program).c_str(), line.data(), nullptr, nullptr, TRUE,
                          CREATE_SUSPENDED, nullptr, folder.empty() ? nullptr : folder.c_str(),
                          &how, &started))
        return lastFailure();
    Handle job = jobThatEndsWithUs();
    const Handle thread(started.hThread);
    ::AssignProcessToJobObject(job.get(), started.hProcess);
    ChildProcess child(
        std::make_unique<Running>(std::move(job), Handle(started.hProcess), std::move(output)));
    ::ResumeThread(thread.get());
    return child;
}

// Nothing can wait for a plain pipe.
void ChildProcess::wait(std::span<ChildProcess* const> children, std::chrono::milliseconds atMost) {
    constexpr DWORD step = 10; // milliseconds
    const auto isReady = [](const ChildProcess* child) {
        return hasOutput(child->running_->output.get());
    };
    for (auto left = atMost.count(); left > 0 && std::ranges::none_of(children, isReady);
         left -= step)
        ::Sleep(step);
}

std::string ChildProcess::read() {
    if (!hasOutput(running_->output.get()))
        return {};
    constexpr DWORD most = 65536;
    std::string bytes(most, '\0');
    DWORD count = 0;
    running_->isAtEnd =
        !::ReadFile(running_->output.get(), bytes.data(), most, &count, nullptr) || count == 0;
    bytes.resize(count);
    return bytes;
}

bool ChildProcess::isAtEnd() const {
    return running_->isAtEnd;
}

// The console tells all of its programs.
void ChildProcess::interrupt() {}

void ChildProcess::kill() {
    running_->kill();
}

// A program that has crashed has the number of what stopped it.
std::optional<int> ChildProcess::exitCode() {
    constexpr DWORD firstFault = 0x80000000;
    ::WaitForSingleObject(running_->process.get(), INFINITE);
    DWORD code = 0;
    if (running_->isKilled || !::GetExitCodeProcess(running_->process.get(), &code) ||
        code >= firstFault)
        return std::nullopt;
    return static_cast<int>(code);
}

} // namespace vantrel
