#include "platform/Drives.h"
#include "platform/NetworkDrives_windows.h"
#include "platform/System_windows.h"

#include <array>

namespace vantrel {

namespace {

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
