#pragma once

#include "base/Result.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include <windows.h>

namespace vantrel {

/// UTF-8 as the system's own text, and back. What is no text becomes U+FFFD.
std::wstring wide(std::string_view utf8);
std::string narrow(std::wstring_view text);

/// A path for the system's file functions. One that is too long for them in the plain form gets the
/// form that has no limit, whatever the machine's settings.
std::wstring systemPath(std::string_view utf8);

/// The system would look at the first part only of a path with a NUL.
bool hasNul(std::string_view path);

/// The system's words for an error code.
Failure systemFailure(DWORD error);
/// The same for the error of this thread's last call.
Failure lastFailure();

/// An open handle of the system; closed with the object.
class Handle {
  public:
    explicit Handle(HANDLE handle) : handle_(handle) {}
    Handle(Handle&& other) noexcept : handle_(std::exchange(other.handle_, INVALID_HANDLE_VALUE)) {}
    Handle& operator=(Handle&& other) noexcept {
        std::swap(handle_, other.handle_);
        return *this;
    }
    ~Handle() { close(); }

    bool isOpen() const { return handle_ != INVALID_HANDLE_VALUE && handle_ != nullptr; }
    HANDLE get() const { return handle_; }
    /// 0 or the error code.
    DWORD close();

  private:
    HANDLE handle_;
};

/// What a path leads to, symbolic links followed.
struct FileDetails {
    DWORD error = 0; ///< when it is not 0 the rest says nothing
    DWORD attributes = 0;
    std::uint64_t size = 0; ///< bytes
    FILETIME changed{};

    bool isFolder() const { return (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0; }
    bool isMissing() const {
        return error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND;
    }
};
FileDetails readDetails(const std::wstring& path);

} // namespace vantrel
