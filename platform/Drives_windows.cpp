#include "platform/Drives.h"
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

/// The share behind a drive letter ("Z:"), such as "\\server\share", by the system's own table: the
/// server is not asked, and may be off. Empty for a drive of this machine.
std::wstring connectedShare(const std::wstring& letter) {
    std::array<wchar_t, 1024> share{};
    auto size = static_cast<DWORD>(share.size());
    const DWORD result = ::WNetGetConnectionW(letter.c_str(), share.data(), &size);
    // A share that is remembered but not connected now is one all the same.
    const bool isKnown = result == NO_ERROR || result == ERROR_CONNECTION_UNAVAIL;
    return isKnown ? share.data() : L"";
}

constexpr unsigned letterCount = 26;

/// The volume's label. Only of disks that are always there: asking a drive for removable media may
/// start a motor, and take as long.
std::wstring label(const std::wstring& root) {
    const UINT kind = ::GetDriveTypeW(root.c_str());
    if (kind != DRIVE_FIXED && kind != DRIVE_RAMDISK)
        return {};
    std::array<wchar_t, MAX_PATH + 1> name{};
    if (!::GetVolumeInformationW(root.c_str(), name.data(), static_cast<DWORD>(name.size()),
                                 nullptr, nullptr, nullptr, nullptr, 0))
        return {};
    return name.data();
}

} // namespace

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

std::vector<Drive> listDrives() {
    std::vector<Drive> drives;
    const DWORD present = ::GetLogicalDrives();
    for (unsigned index = 0; index < letterCount; ++index) {
        if ((present & (1u << index)) == 0)
            continue;
        const std::wstring letter{static_cast<wchar_t>(L'A' + index), L':'};
        const std::wstring root = letter + L'\\';
        const std::wstring share = connectedShare(letter);
        const std::wstring name = share.empty() ? label(root) : share;
        drives.push_back(
            {narrow(root), narrow(name.empty() ? letter : letter + L" [" + name + L']')});
    }
    return drives;
}

} // namespace vantrel
