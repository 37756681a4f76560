#include "platform/NetworkDrives_windows.h"
#include "platform/NetworkFolders.h"
#include "platform/System_windows.h"

#include <array>

#include <winnetwk.h>

namespace vantrel {

namespace {

bool isSeparator(wchar_t character) {
    return character == L'\\' || character == L'/';
}

bool isDeviceForm(std::wstring_view path) {
    return path.size() > 2 && (path[2] == L'?' || path[2] == L'.');
}

/// A path that begins with a server's name.
bool isShare(const std::wstring& path) {
    if (path.size() < 3 || !isSeparator(path[0]) || !isSeparator(path[1]))
        return false;
    return !isDeviceForm(path) || path.starts_with(LR"(\\?\UNC\)");
}

} // namespace

std::wstring connectedShare(const std::wstring& letter) {
    std::array<wchar_t, 1024> share{};
    auto size = static_cast<DWORD>(share.size());
    const DWORD result = ::WNetGetConnectionW(letter.c_str(), share.data(), &size);
    // A share that is remembered but not connected now is one all the same.
    const bool isKnown = result == NO_ERROR || result == ERROR_CONNECTION_UNAVAIL;
    return isKnown ? share.data() : L"";
}

bool isOnNetwork(const std::string& folder) {
    const std::wstring path = wide(folder);
    if (isShare(path))
        return true;
    if (path.size() < 2 || path[1] != L':')
        return false;
    const std::wstring letter = path.substr(0, 2);
    return ::GetDriveTypeW((letter + L'\\').c_str()) == DRIVE_REMOTE ||
           !connectedShare(letter).empty();
}

} // namespace vantrel
