#include "platform/Files.h"
#include "platform/HeldFile.h"
#include "platform/System_windows.h"

namespace vantrel {

/// Shared with nobody: that is what holds it.
struct HeldFile::Open {
    Handle file;
};

Result<std::optional<HeldFile>> HeldFile::hold(const std::string& path, bool make) {
    if (hasNul(path))
        return systemFailure(ERROR_INVALID_NAME);
    const std::wstring name = systemPath(path);
    const DWORD how = make ? OPEN_ALWAYS : OPEN_EXISTING;
    const auto open = [&name, how](DWORD access) {
        return Handle(::CreateFileW(name.c_str(), access, 0, nullptr, how,
                                    FILE_ATTRIBUTE_NORMAL | FILE_FLAG_OPEN_REPARSE_POINT, nullptr));
    };
    Handle file = open(GENERIC_READ | GENERIC_WRITE | DELETE);
    // A mark on a medium that has become write-protected can be held and read all the same.
    if (!file.isOpen() && !make && ::GetLastError() != ERROR_SHARING_VIOLATION)
        file = open(GENERIC_READ);
    if (!file.isOpen()) {
        const DWORD error = ::GetLastError();
        const bool isGone =
            !make && (error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND);
        return isGone || error == ERROR_SHARING_VIOLATION
                   ? Result<std::optional<HeldFile>>(std::optional<HeldFile>())
                   : Result<std::optional<HeldFile>>(systemFailure(error));
    }
    if (::GetFileType(file.get()) != FILE_TYPE_DISK)
        return Failure{"Not a regular file"};
    return std::optional(HeldFile(std::make_shared<Open>(Open{std::move(file)})));
}

Result<HeldFile> HeldFile::make(const std::string& path) {
    auto held = hold(path, true);
    if (!held)
        return Failure{held.reason()};
    return *held ? Result<HeldFile>(std::move(**held)) : systemFailure(ERROR_SHARING_VIOLATION);
}

Result<std::optional<HeldFile>> HeldFile::take(const std::string& path) {
    return hold(path, false);
}

// A disk that did not know how files are shared would not have opened it.
bool HeldFile::isHeldAlone() const {
    return true;
}

Result<std::string> HeldFile::read() const {
    constexpr DWORD mostRead = 65536;
    std::string content(mostRead, '\0');
    DWORD count = 0;
    if (::SetFilePointer(open_->file.get(), 0, nullptr, FILE_BEGIN) == INVALID_SET_FILE_POINTER ||
        !::ReadFile(open_->file.get(), content.data(), mostRead, &count, nullptr))
        return lastFailure();
    content.resize(count);
    return content;
}

// The system's journal keeps the order of what happens to names.
Outcome HeldFile::write(std::string_view content) {
    const HANDLE file = open_->file.get();
    DWORD written = 0;
    if (::SetFilePointer(file, 0, nullptr, FILE_BEGIN) == INVALID_SET_FILE_POINTER ||
        !::SetEndOfFile(file) ||
        !::WriteFile(file, content.data(), static_cast<DWORD>(content.size()), &written, nullptr) ||
        !::FlushFileBuffers(file))
        return lastFailure();
    return written == content.size() ? Outcome(Done{}) : Outcome(systemFailure(ERROR_DISK_FULL));
}

Outcome HeldFile::remove() {
    FILE_DISPOSITION_INFO gone{};
    gone.DeleteFile = TRUE;
    if (!::SetFileInformationByHandle(open_->file.get(), FileDispositionInfo, &gone, sizeof gone))
        return lastFailure();
    const DWORD error = open_->file.close();
    return error == 0 ? Outcome(Done{}) : Outcome(systemFailure(error));
}

} // namespace vantrel
