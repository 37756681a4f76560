#pragma once

#include "platform/System_windows.h"

#include <string>
#include <string_view>

namespace vantrel {

/// A new file of a name that nobody else uses; it is gone with the object unless it became another.
class TemporaryFile {
  public:
    /// In the folder of `neighbour`, so that it can take that file's place.
    explicit TemporaryFile(const std::wstring& neighbour);
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile();

    /// What went wrong when it was made; 0 when nothing did.
    DWORD error() const { return error_; }
    const std::wstring& path() const { return path_; }

    /// Everything on the disk and the file closed; 0 or the error code.
    DWORD fill(std::string_view content);
    /// Takes the place of `target`, which keeps its permissions; 0 or the error code.
    DWORD become(const std::wstring& target);

  private:
    std::wstring path_;
    Handle file_{INVALID_HANDLE_VALUE};
    DWORD error_ = 0;
    bool kept_ = false;
};

/// Removes what a power cut has left behind in the folder of `neighbour`: temporary files of this
/// kind that nobody has written to for a day, so that none that is in use is among them. What
/// cannot be removed stays, without a word.
void removeStaleTemporaryFiles(const std::wstring& neighbour);

} // namespace vantrel
