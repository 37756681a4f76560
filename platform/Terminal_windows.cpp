#include "platform/System_windows.h"
#include "platform/Terminal.h"

#include <algorithm>
#include <array>

#include <shellapi.h>

namespace vantrel {
namespace {

HANDLE handleOf(TextStream::Kind kind) {
    return ::GetStdHandle(kind == TextStream::Kind::Output ? STD_OUTPUT_HANDLE : STD_ERROR_HANDLE);
}

bool isConsole(HANDLE handle) {
    DWORD mode = 0;
    return ::GetConsoleMode(handle, &mode) != 0;
}

Outcome writeBytes(HANDLE handle, std::string_view bytes) {
    constexpr std::size_t most = 1U << 20U;
    while (!bytes.empty()) {
        DWORD written = 0;
        const auto count = static_cast<DWORD>(std::min(bytes.size(), most));
        if (::WriteFile(handle, bytes.data(), count, &written, nullptr) == 0)
            return lastFailure();
        bytes.remove_prefix(written);
    }
    return Done{};
}

// A console takes no more than some thousand characters at once.
Outcome writeCharacters(HANDLE handle, std::wstring_view text) {
    constexpr std::size_t most = 8000;
    while (!text.empty()) {
        DWORD written = 0;
        const auto count = static_cast<DWORD>(std::min(text.size(), most));
        if (::WriteConsoleW(handle, text.data(), count, &written, nullptr) == 0)
            return lastFailure();
        text.remove_prefix(written);
    }
    return Done{};
}

} // namespace

// What the program was given as bytes has lost the characters that the code page lacks.
std::vector<std::string> programArguments(int, char**) {
    int count = 0;
    wchar_t** const values = ::CommandLineToArgvW(::GetCommandLineW(), &count);
    std::vector<std::string> arguments;
    for (int index = 1; values && index < count; ++index)
        arguments.push_back(narrow(values[index]));
    ::LocalFree(static_cast<void*>(values));
    return arguments;
}

bool TextStream::isTerminal() const {
    return isConsole(handleOf(kind_));
}

Outcome TextStream::write(std::string_view text) {
    const HANDLE handle = handleOf(kind_);
    return isConsole(handle) ? writeCharacters(handle, wide(text)) : writeBytes(handle, text);
}

bool canReadTerminal() {
    return isConsole(::GetStdHandle(STD_INPUT_HANDLE));
}

std::optional<std::string> readTerminalLine(const std::function<bool()>& isCalledOff) {
    if (isCalledOff())
        return std::nullopt;
    std::array<wchar_t, 256> characters{};
    DWORD count = 0;
    if (::ReadConsoleW(::GetStdHandle(STD_INPUT_HANDLE), characters.data(),
                       static_cast<DWORD>(characters.size()), &count, nullptr) == 0 ||
        count == 0)
        return std::nullopt;
    const std::wstring_view line(characters.data(), count);
    return narrow(line.substr(0, line.find_first_of(L"\r\n")));
}

void* unseenWindow() {
    static HWND__* const window = ::CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE,
                                                    nullptr, nullptr, nullptr);
    return window;
}

} // namespace vantrel
