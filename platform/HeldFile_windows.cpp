#include "platform/Files.h"
#include "platform/HeldFile.h"
#include "platform/System_windows.h"

namespace vantrel {

/// Shared with nobody who writes: that is what holds it.
struct HeldFile::Open {
    Handle file;
    bool isLasting; ///< it is brought to the disk
};

/// Without a file there was somebody who holds it, or none was there.
struct HeldFile::Attempt {
    std::optional<HeldFile> file;
    bool isSomebodys = false;
};

Result<HeldFile::Attempt> HeldFile::hold(const std::string& path, Wish wish) {
    if (hasNul(path))
        return systemFailure(ERROR_INVALID_NAME);
    const std::wstring name = systemPath(path);
    const DWORD how = wish == Wish::Take ? OPEN_EXISTING : OPEN_ALWAYS;
    const bool isReadable = wish == Wish::Lock || wish == Wish::MakeReadable;
    const DWORD shared = isReadable ? FILE_SHARE_READ : 0;
    const auto open = [&name, how, shared](DWORD access) {
        return Handle(::CreateFileW(name.c_str(), access, shared, nullptr, how,
                                    FILE_ATTRIBUTE_NORMAL | FILE_FLAG_OPEN_REPARSE_POINT, nullptr));
    };
    Handle file = open(GENERIC_READ | GENERIC_WRITE | DELETE);
    // A mark on a medium that has become write-protected can be held and read all the same.
    if (!file.isOpen() && wish == Wish::Take && ::GetLastError() != ERROR_SHARING_VIOLATION)
        file = open(GENERIC_READ);
    if (!file.isOpen()) {
        const DWORD error = ::GetLastError();
        const bool isGone =
            wish == Wish::Take && (error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND);
        if (!isGone && error != ERROR_SHARING_VIOLATION)
            return systemFailure(error);
        return Attempt{.file = {}, .isSomebodys = !isGone};
    }
    if (::GetFileType(file.get()) != FILE_TYPE_DISK)
        return Failure{"Not a regular file"};
    return Attempt{HeldFile(std::make_shared<Open>(Open{std::move(file), wish != Wish::Lock}))};
}

Result<HeldFile> HeldFile::make(const std::string& path) {
    return make(path, Wish::Make);
}

Result<HeldFile> HeldFile::makeReadable(const std::string& path) {
    return make(path, Wish::MakeReadable);
}

Result<HeldFile> HeldFile::make(const std::string& path, Wish wish) {
    auto held = hold(path, wish);
    if (!held)
        return Failure{held.reason()};
    return held->file ? Result<HeldFile>(std::move(*held->file))
                      : systemFailure(ERROR_SHARING_VIOLATION);
}

Result<std::optional<HeldFile>> HeldFile::take(const std::string& path) {
    auto held = hold(path, Wish::Take);
    if (!held)
        return Failure{held.reason()};
    return std::move(held->file);
}

// A file that its holder has removed denies access until those who read it have closed it.
Result<std::optional<HeldFile>> HeldFile::lock(const std::string& path) {
    constexpr int mostTries = 20;
    auto held = hold(path, Wish::Lock);
    for (int tries = 1; !held && tries < mostTries && anythingExists(path); ++tries) {
        ::Sleep(1);
        held = hold(path, Wish::Lock);
    }
    if (!held)
        return Failure{held.reason()};
    return std::move(held->file);
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
        (open_->isLasting && !::FlushFileBuffers(file)))
        return lastFailure();
    return written == content.size() ? Outcome(Done{}) : Outcome(systemFailure(ERROR_DISK_FULL));
}

Outcome HeldFile::append(std::string_view content) {
    const HANDLE file = open_->file.get();
    DWORD written = 0;
    if (::SetFilePointer(file, 0, nullptr, FILE_END) == INVALID_SET_FILE_POINTER ||
        !::WriteFile(file, content.data(), static_cast<DWORD>(content.size()), &written, nullptr))
        return lastFailure();
    return written == content.size() ? Outcome(Done{}) : Outcome(systemFailure(ERROR_DISK_FULL));
}

Outcome HeldFile::flush() {
    return ::FlushFileBuffers(open_->file.get()) ? Outcome(Done{}) : Outcome(lastFailure());
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
