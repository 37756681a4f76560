#include "platform/Files.h"
#include "platform/TemporaryFile_windows.h"

namespace vantrel {

namespace {

/// Where symbolic links end; `path` itself when it is none or leads nowhere.
std::wstring followLinks(const std::wstring& path) {
    const DWORD attributes = ::GetFileAttributesW(path.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0)
        return path;
    constexpr DWORD sharedWithAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const Handle file(::CreateFileW(path.c_str(), FILE_READ_ATTRIBUTES, sharedWithAll, nullptr,
                                    OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
    if (!file.isOpen())
        return path;
    std::wstring target(::GetFinalPathNameByHandleW(file.get(), nullptr, 0, 0), L'\0');
    const DWORD length = ::GetFinalPathNameByHandleW(file.get(), target.data(),
                                                     static_cast<DWORD>(target.size()), 0);
    if (length == 0 || length >= target.size())
        return path;
    target.resize(length);
    return target;
}

} // namespace

Outcome replaceFile(const std::string& path, std::string_view content) {
    if (hasNul(path))
        return systemFailure(ERROR_INVALID_NAME);
    const std::wstring target = followLinks(systemPath(path));
    const auto old = readDetails(target);
    if (old.error != 0 && !old.isMissing())
        return systemFailure(old.error);
    if (old.error == 0 && old.isFolder())
        return Failure{"Is a folder"};
    if (old.error == 0 && (old.attributes & FILE_ATTRIBUTE_READONLY) != 0)
        return systemFailure(ERROR_ACCESS_DENIED);
    TemporaryFile temporary(target);
    DWORD error = temporary.error();
    if (error == 0)
        error = temporary.fill(content);
    if (error == 0)
        error = temporary.become(target);
    return error == 0 ? Outcome(Done{}) : Outcome(systemFailure(error));
}

} // namespace vantrel
