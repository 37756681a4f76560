#include "base/PathRules.h"
#include "base/TextCase.h"
#include "platform/Files.h"
#include "platform/System_windows.h"

#include <algorithm>
#include <new>
#include <stdexcept>

namespace vantrel {

namespace {

/// Reads until the end, whatever size the system told beforehand. 0 or the error code.
DWORD readAll(HANDLE file, std::size_t expectedSize, std::string& content) {
    constexpr std::size_t block = 65536;
    constexpr std::size_t mostAtOnce = std::size_t{1} << 30u;
    content.resize(expectedSize + 1);
    std::size_t used = 0;
    while (true) {
        if (used == content.size())
            content.resize(content.size() + content.size() / 2 + block);
        const auto room = static_cast<DWORD>(std::min(content.size() - used, mostAtOnce));
        DWORD count = 0;
        if (!::ReadFile(file, content.data() + used, room, &count, nullptr))
            return ::GetLastError();
        if (count == 0)
            break;
        used += count;
    }
    content.resize(used);
    return 0;
}

Result<std::string> readOpenFile(const Handle& file) {
    LARGE_INTEGER size{};
    if (!::GetFileSizeEx(file.get(), &size))
        return lastFailure();
    if (static_cast<std::uint64_t>(size.QuadPart) >= std::string().max_size())
        return systemFailure(ERROR_FILE_TOO_LARGE);
    std::string content;
    const DWORD error = readAll(file.get(), static_cast<std::size_t>(size.QuadPart), content);
    if (error != 0)
        return systemFailure(error);
    return content;
}

/// One entry of that very name: what leads out of the folder or to itself is none, nor is what the
/// system would take for a pattern.
bool isEntryName(std::string_view name) {
    return !name.empty() && name != "." && name != ".." && !hasNul(name) &&
           name.find_first_of(R"(\/:*?"<>|)") == std::string_view::npos;
}

Outcome done(BOOL success) {
    return success ? Outcome(Done{}) : Outcome(lastFailure());
}

Result<std::string> readDiskFile(const Handle& file) {
    if (::GetFileType(file.get()) != FILE_TYPE_DISK)
        return Failure{"Not a regular file"};
    try {
        return readOpenFile(file);
    } catch (const std::bad_alloc&) {
        return systemFailure(ERROR_NOT_ENOUGH_MEMORY);
    } catch (const std::length_error&) {
        return systemFailure(ERROR_FILE_TOO_LARGE);
    }
}

/// `sharing` is what other programs may have the file open for.
Result<std::string> readShared(const std::string& path, DWORD sharing) {
    if (hasNul(path))
        return systemFailure(ERROR_INVALID_NAME);
    const std::wstring name = systemPath(path);
    if (const auto details = readDetails(name); details.error == 0 && details.isFolder())
        return Failure{"Is a folder"};
    const Handle file(::CreateFileW(name.c_str(), GENERIC_READ, sharing, nullptr, OPEN_EXISTING,
                                    FILE_FLAG_SEQUENTIAL_SCAN, nullptr));
    return file.isOpen() ? readDiskFile(file) : lastFailure();
}

} // namespace

Result<std::string> readFile(const std::string& path) {
    return readShared(path, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE);
}

Result<std::string> readSettledFile(const std::string& path) {
    return readShared(path, FILE_SHARE_READ);
}

Result<std::string> readUnsharedFile(const std::string& path) {
    return readShared(path, 0);
}

Outcome renameFile(const std::string& from, const std::string& to) {
    if (hasNul(from) || hasNul(to))
        return systemFailure(ERROR_INVALID_NAME);
    return done(::MoveFileExW(systemPath(from).c_str(), systemPath(to).c_str(),
                              MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH));
}

Outcome renameToFree(const std::string& from, const std::string& to) {
    if (hasNul(from) || hasNul(to))
        return systemFailure(ERROR_INVALID_NAME);
    return done(
        ::MoveFileExW(systemPath(from).c_str(), systemPath(to).c_str(), MOVEFILE_WRITE_THROUGH));
}

Outcome removeFile(const std::string& path) {
    if (hasNul(path))
        return systemFailure(ERROR_INVALID_NAME);
    return done(::DeleteFileW(systemPath(path).c_str()));
}

// As long as the name is open here nobody can write to the file, rename it or put another one in
// its place, and it goes by this very opening of it. Of a link the name itself is held and goes,
// and what it leads to is only read.
Result<bool> removeFileIf(const std::string& path, const std::string&,
                          const std::function<bool(const std::string& content)>& mayGo) {
    if (hasNul(path))
        return systemFailure(ERROR_INVALID_NAME);
    const std::wstring name = systemPath(path);
    const auto details = readDetails(name);
    if (details.error != 0)
        return systemFailure(details.error);
    if (details.isFolder())
        return Failure{"Is a folder"};
    const Handle held(::CreateFileW(name.c_str(), DELETE, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                                    FILE_FLAG_OPEN_REPARSE_POINT, nullptr));
    if (!held.isOpen())
        return lastFailure();
    const auto content = readShared(path, FILE_SHARE_READ | FILE_SHARE_DELETE);
    if (!content)
        return Failure{content.reason()};
    if (!mayGo(*content))
        return false;
    FILE_DISPOSITION_INFO gone{};
    gone.DeleteFile = TRUE;
    if (!::SetFileInformationByHandle(held.get(), FileDispositionInfo, &gone, sizeof gone))
        return lastFailure();
    return true;
}

Outcome flushFile(const std::string& path) {
    if (hasNul(path))
        return systemFailure(ERROR_INVALID_NAME);
    constexpr DWORD sharedWithAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const Handle file(::CreateFileW(systemPath(path).c_str(), GENERIC_WRITE, sharedWithAll, nullptr,
                                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file.isOpen() || !::FlushFileBuffers(file.get()))
        return lastFailure();
    return Done{};
}

std::vector<std::string> flushFiles(const std::string& folder,
                                    const std::vector<std::string>& names) {
    std::vector<std::string> failed;
    for (const std::string& name : names)
        if (!flushFile(PathRules().join(folder, name)))
            failed.push_back(name);
    return failed;
}

// The system's journal keeps the order of what happens to names; renaming writes through to the
// disk besides.
Outcome flushFolder(const std::string& folder) {
    return isFolder(folder) ? Outcome(Done{}) : Outcome(systemFailure(ERROR_PATH_NOT_FOUND));
}

bool isRegularFile(const std::string& path) {
    if (hasNul(path))
        return false;
    const auto details = readDetails(systemPath(path));
    constexpr DWORD others = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_DEVICE;
    return details.error == 0 && (details.attributes & others) == 0;
}

bool isFolder(const std::string& path) {
    if (hasNul(path))
        return false;
    const auto details = readDetails(systemPath(path));
    return details.error == 0 && details.isFolder();
}

bool anythingExists(const std::string& path) {
    return !hasNul(path) &&
           ::GetFileAttributesW(systemPath(path).c_str()) != INVALID_FILE_ATTRIBUTES;
}

/// The system itself finds a name in any letter case; what is wanted is its own spelling. It also
/// finds the short names that it gives to long ones, which are not meant.
std::string findIgnoringCase(const std::string& folder, std::string_view name) {
    if (!isEntryName(name) || folder.empty() || hasNul(folder))
        return {};
    WIN32_FIND_DATAW found{};
    const std::wstring path = systemPath(folder + '\\' + std::string(name));
    const HANDLE search = ::FindFirstFileW(path.c_str(), &found);
    if (search == INVALID_HANDLE_VALUE)
        return {};
    ::FindClose(search);
    const std::string spelling = narrow(found.cFileName);
    return upperCase(spelling) == upperCase(name) ? spelling : std::string();
}

std::string comparedName(std::string_view name) {
    return upperCase(name);
}

Outcome createFolder(const std::string& path) {
    if (hasNul(path))
        return systemFailure(ERROR_INVALID_NAME);
    return done(::CreateDirectoryW(systemPath(path).c_str(), nullptr));
}

Result<std::string> createTemporaryFolder() {
    std::wstring place(MAX_PATH + 1, L'\0');
    const DWORD length = ::GetTempPathW(static_cast<DWORD>(place.size()), place.data());
    if (length == 0 || length > place.size())
        return lastFailure();
    place.resize(length);
    constexpr int attempts = 100;
    const std::string start = narrow(place) + "vantrel-" + std::to_string(::GetCurrentProcessId()) +
                              "-" + std::to_string(::GetTickCount64()) + "-";
    for (int attempt = 0; attempt < attempts; ++attempt) {
        const std::string path = start + std::to_string(attempt);
        if (::CreateDirectoryW(systemPath(path).c_str(), nullptr))
            return path;
        if (::GetLastError() != ERROR_ALREADY_EXISTS)
            break;
    }
    return lastFailure();
}

Outcome removeFolder(const std::string& path) {
    if (hasNul(path))
        return systemFailure(ERROR_INVALID_NAME);
    return done(::RemoveDirectoryW(systemPath(path).c_str()));
}

std::int64_t namesChangedAt(const std::string& folder) {
    WIN32_FILE_ATTRIBUTE_DATA details{};
    if (hasNul(folder) ||
        !::GetFileAttributesExW(systemPath(folder).c_str(), GetFileExInfoStandard, &details))
        return 0;
    const FILETIME& changed = details.ftLastWriteTime;
    return std::int64_t{changed.dwHighDateTime} << 32u | std::int64_t{changed.dwLowDateTime};
}

std::string currentFolder() {
    std::wstring path(::GetCurrentDirectoryW(0, nullptr), L'\0');
    const DWORD length = ::GetCurrentDirectoryW(static_cast<DWORD>(path.size()), path.data());
    return length < path.size() ? narrow(std::wstring_view(path).substr(0, length)) : std::string();
}

Outcome changeCurrentFolder(const std::string& path) {
    if (hasNul(path))
        return systemFailure(ERROR_INVALID_NAME);
    return done(::SetCurrentDirectoryW(wide(path).c_str()));
}

} // namespace vantrel
