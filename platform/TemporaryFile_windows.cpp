#include "platform/TemporaryFile_windows.h"

#include <algorithm>
#include <chrono>
#include <cstdint>

namespace vantrel {

namespace {

/// With the separator at its end.
std::wstring folderOf(const std::wstring& path) {
    const auto last = path.find_last_of(L"\\/:");
    return last == std::wstring::npos ? L".\\" : path.substr(0, last + 1);
}

DWORD writeAll(HANDLE file, std::string_view content) {
    constexpr std::size_t mostAtOnce = std::size_t{1} << 30u;
    while (!content.empty()) {
        DWORD written = 0;
        const auto size = static_cast<DWORD>(std::min(content.size(), mostAtOnce));
        if (!::WriteFile(file, content.data(), size, &written, nullptr))
            return ::GetLastError();
        content.remove_prefix(written);
    }
    return 0;
}

/// 100-nanosecond units since 1601.
std::uint64_t ticksOf(const FILETIME& time) {
    return std::uint64_t{time.dwHighDateTime} << 32u | time.dwLowDateTime;
}

bool isStale(const WIN32_FIND_DATAW& file) {
    constexpr std::uint64_t day = 24ull * 60 * 60 * 10'000'000;
    constexpr DWORD otherKinds = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT;
    if ((file.dwFileAttributes & otherKinds) != 0)
        return false;
    FILETIME now{};
    ::GetSystemTimeAsFileTime(&now);
    return ticksOf(file.ftLastWriteTime) + day < ticksOf(now);
}

/// One try: in place of an old file, whose permissions and streams the new one takes over, or as a
/// new one. 0 or the error code.
DWORD moveOnto(const std::wstring& target, const std::wstring& file) {
    constexpr DWORD lenient = REPLACEFILE_IGNORE_MERGE_ERRORS | REPLACEFILE_IGNORE_ACL_ERRORS;
    if (::ReplaceFileW(target.c_str(), file.c_str(), nullptr, lenient, nullptr, nullptr))
        return 0;
    // There is no old file, or the file system knows no such replacement.
    if (::MoveFileExW(file.c_str(), target.c_str(),
                      MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH))
        return 0;
    return ::GetLastError();
}

constexpr std::wstring_view namePrefix = L".vantrel-";
constexpr std::wstring_view nameSuffix = L".tmp";

} // namespace

TemporaryFile::TemporaryFile(const std::wstring& neighbour) {
    constexpr int attempts = 100;
    // Short, whatever the length of the name to replace, which may be the longest possible.
    const auto ticks = std::chrono::steady_clock::now().time_since_epoch().count();
    const std::wstring start = folderOf(neighbour) + std::wstring(namePrefix) +
                               std::to_wstring(::GetCurrentProcessId()) + L"-" +
                               std::to_wstring(ticks) + L"-";
    for (int i = 0; i < attempts && !file_.isOpen() && (i == 0 || error_ == ERROR_FILE_EXISTS);
         ++i) {
        path_ = start + (std::to_wstring(i) += nameSuffix);
        file_ = Handle(::CreateFileW(path_.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                                     FILE_ATTRIBUTE_NORMAL, nullptr));
        error_ = file_.isOpen() ? 0 : ::GetLastError();
    }
    kept_ = error_ != 0;
}

TemporaryFile::~TemporaryFile() {
    file_.close();
    if (!kept_)
        ::DeleteFileW(path_.c_str());
}

DWORD TemporaryFile::fill(std::string_view content) {
    if (const DWORD error = writeAll(file_.get(), content); error != 0)
        return error;
    if (!::FlushFileBuffers(file_.get()))
        return ::GetLastError();
    return file_.close();
}

DWORD TemporaryFile::become(const std::wstring& target) {
    // A scanner may look at a new file for a moment and keep it from being moved.
    constexpr int attempts = 5;
    constexpr DWORD pause = 40; // milliseconds
    for (int i = 0; i < attempts; ++i) {
        error_ = moveOnto(target, path_);
        kept_ = error_ == 0;
        if (error_ != ERROR_SHARING_VIOLATION && error_ != ERROR_ACCESS_DENIED)
            break;
        ::Sleep(pause);
    }
    return error_;
}

void removeStaleTemporaryFiles(const std::wstring& neighbour) {
    const std::wstring folder = folderOf(neighbour);
    const std::wstring pattern = (folder + std::wstring(namePrefix) + L"*").append(nameSuffix);
    WIN32_FIND_DATAW found{};
    const HANDLE search = ::FindFirstFileW(pattern.c_str(), &found);
    if (search == INVALID_HANDLE_VALUE)
        return;
    do {
        // A pattern is compared with short names too.
        const std::wstring_view name = found.cFileName;
        if (name.starts_with(namePrefix) && name.ends_with(nameSuffix) && isStale(found))
            ::DeleteFileW((folder + found.cFileName).c_str());
    } while (::FindNextFileW(search, &found));
    ::FindClose(search);
}

} // namespace vantrel
