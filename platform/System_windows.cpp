#include "platform/System_windows.h"

#include <memory>

namespace vantrel {

namespace {

/// From this length on, the longest name added, the plain form may be too long.
constexpr std::size_t longestPlainPath = 240;

std::wstring fullPath(const std::wstring& path) {
    std::wstring full(path.size() + MAX_PATH, L'\0');
    while (true) {
        const DWORD length =
            ::GetFullPathNameW(path.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr);
        if (length == 0)
            return path;
        const bool fits = length < full.size();
        full.resize(length);
        if (fits)
            return full;
    }
}

/// What a symbolic link leads to can be seen only through the opened file.
FileDetails detailsBehindLink(const std::wstring& path) {
    constexpr DWORD sharedWithAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const Handle file(::CreateFileW(path.c_str(), FILE_READ_ATTRIBUTES, sharedWithAll, nullptr,
                                    OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
    BY_HANDLE_FILE_INFORMATION found{};
    if (!file.isOpen() || !::GetFileInformationByHandle(file.get(), &found))
        return {::GetLastError()};
    const auto size = (std::uint64_t{found.nFileSizeHigh} << 32u) | found.nFileSizeLow;
    return {0, found.dwFileAttributes, size, found.ftLastWriteTime};
}

} // namespace

std::wstring wide(std::string_view utf8) {
    if (utf8.empty())
        return {};
    const int size = static_cast<int>(utf8.size());
    std::wstring text(utf8.size(), L'\0'); // never more units than bytes
    const int count = ::MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, text.data(), size);
    text.resize(static_cast<std::size_t>(count));
    return text;
}

std::string narrow(std::wstring_view text) {
    if (text.empty())
        return {};
    constexpr std::size_t mostBytesPerUnit = 3;
    std::string utf8(text.size() * mostBytesPerUnit, '\0');
    const int count =
        ::WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), utf8.data(),
                              static_cast<int>(utf8.size()), nullptr, nullptr);
    utf8.resize(static_cast<std::size_t>(count));
    return utf8;
}

std::wstring systemPath(std::string_view utf8) {
    const std::wstring path = wide(utf8);
    if (path.size() < longestPlainPath || path.starts_with(LR"(\\?\)"))
        return path;
    const std::wstring full = fullPath(path);
    if (full.starts_with(LR"(\\)"))
        return LR"(\\?\UNC)" + full.substr(1);
    return LR"(\\?\)" + full;
}

bool hasNul(std::string_view path) {
    return path.find('\0') != std::string_view::npos;
}

Failure systemFailure(DWORD error) {
    wchar_t* text = nullptr;
    const DWORD length = ::FormatMessageW(
        FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS,
        nullptr, error, 0, reinterpret_cast<wchar_t*>(&text), 0, nullptr);
    const std::unique_ptr<wchar_t, decltype(&::LocalFree)> owner(text, &::LocalFree);
    std::wstring_view words(text, length);
    words = words.substr(0, words.find_last_not_of(L" .\r\n") + 1);
    return Failure{words.empty() ? "system error " + std::to_string(error) : narrow(words)};
}

Failure lastFailure() {
    return systemFailure(::GetLastError());
}

DWORD Handle::close() {
    const HANDLE handle = std::exchange(handle_, INVALID_HANDLE_VALUE);
    if (handle == INVALID_HANDLE_VALUE || handle == nullptr)
        return 0;
    return ::CloseHandle(handle) ? 0 : ::GetLastError();
}

FileDetails readDetails(const std::wstring& path) {
    WIN32_FILE_ATTRIBUTE_DATA found{};
    if (!::GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &found))
        return {::GetLastError()};
    if ((found.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0)
        return detailsBehindLink(path);
    const auto size = (std::uint64_t{found.nFileSizeHigh} << 32u) | found.nFileSizeLow;
    return {0, found.dwFileAttributes, size, found.ftLastWriteTime};
}

} // namespace vantrel
