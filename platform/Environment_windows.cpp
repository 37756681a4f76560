#include "platform/Environment.h"
#include "platform/System_windows.h"

#include <array>

#include <shellapi.h>

namespace vantrel {

namespace {

/// The shell's opener returns a number above this one when it succeeded.
constexpr INT_PTR lastShellError = 32;

std::wstring systemFolder() {
    std::array<wchar_t, MAX_PATH + 1> folder{};
    const UINT length = ::GetSystemDirectoryW(folder.data(), static_cast<UINT>(folder.size()));
    return {folder.data(), length < folder.size() ? length : 0};
}

/// Starts a program by its full path, so that nothing else of its name is started, and leaves it to
/// itself.
Outcome startProgram(const std::wstring& program, const std::wstring& argument) {
    // A file's name holds no quotes on this system.
    std::wstring commandLine = L'"' + program + L"\" \"" + argument + L'"';
    STARTUPINFOW how{};
    how.cb = sizeof how;
    how.dwFlags = STARTF_USESHOWWINDOW;
    how.wShowWindow = SW_SHOWNORMAL;
    PROCESS_INFORMATION started{};
    if (!::CreateProcessW(program.c_str(), commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr,
                          nullptr, &how, &started))
        return lastFailure();
    const Handle process(started.hProcess);
    const Handle thread(started.hThread);
    return Done{};
}

} // namespace

std::string executablePath() {
    std::wstring path(MAX_PATH, L'\0');
    while (true) {
        const DWORD length =
            ::GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
        if (length == 0)
            return {};
        if (length < path.size())
            return narrow(std::wstring_view(path).substr(0, length));
        path.resize(path.size() * 2);
    }
}

/// A program is installed for one user, in a folder of his own.
std::string programPath() {
    return executablePath();
}

std::string userName() {
    constexpr DWORD longestName = 256; // characters, its NUL not counted
    std::array<wchar_t, longestName + 1> name{};
    DWORD length = static_cast<DWORD>(name.size());
    return ::GetUserNameW(name.data(), &length) ? narrow(name.data()) : std::string();
}

std::string computerName() {
    std::array<wchar_t, MAX_COMPUTERNAME_LENGTH + 1> name{};
    DWORD length = static_cast<DWORD>(name.size());
    return ::GetComputerNameW(name.data(), &length) ? narrow(name.data()) : std::string();
}

std::uint64_t processNumber() {
    return ::GetCurrentProcessId();
}

std::string localeLanguageName() {
    std::array<wchar_t, 128> name{};
    const int length = ::GetLocaleInfoW(::GetUserDefaultLCID(), LOCALE_SENGLANGUAGE, name.data(),
                                        static_cast<int>(name.size()));
    return length > 0 ? narrow(name.data()) : "English";
}

Outcome openDocument(const std::string& path) {
    if (hasNul(path))
        return systemFailure(ERROR_INVALID_NAME);
    const std::wstring document = wide(path);
    // Without a look first, the shell may show a box of its own about a document that is missing.
    if (const auto details = readDetails(systemPath(path)); details.error != 0)
        return systemFailure(details.error);
    const auto result = reinterpret_cast<INT_PTR>(
        ::ShellExecuteW(nullptr, L"open", document.c_str(), nullptr, nullptr, SW_SHOWNORMAL));
    return result > lastShellError ? Outcome(Done{}) : Outcome(lastFailure());
}

Outcome editTextFile(const std::string& path) {
    if (hasNul(path))
        return systemFailure(ERROR_INVALID_NAME);
    if (const auto details = readDetails(systemPath(path)); details.error != 0)
        return systemFailure(details.error);
    return startProgram(systemFolder() + L"\\notepad.exe", wide(path));
}

std::string libraryFileName() {
    return "Zurolink.dll";
}

} // namespace vantrel
