#include "base/PathRules.h"
#include "platform/Files.h"
#include "ui/WasteBin.h"
#include "ui/look/WxText.h"

#include <shellapi.h>
#include <wx/msw/wrapwin.h>

namespace vantrel {

namespace {

/// Only a disk that stays has a bin; elsewhere the system would delete for good.
bool hasBin(const std::string& path) {
    const std::string drive = PathRules().drive(path);
    return drive.size() == 2 && ::GetDriveTypeW((toWx(drive) + "\\").wc_str()) == DRIVE_FIXED;
}

} // namespace

/// Before it deletes something too large for the bin the system asks itself.
Outcome moveToWasteBin(const std::string& path) {
    if (!hasBin(path))
        return Failure{"Operation not permitted"};
    std::wstring names = toWx(path).ToStdWstring();
    names.push_back(L'\0'); // a list of names ends with an empty one
    SHFILEOPSTRUCTW operation{};
    operation.wFunc = FO_DELETE;
    operation.pFrom = names.c_str();
    operation.fFlags =
        FOF_ALLOWUNDO | FOF_NOCONFIRMATION | FOF_SILENT | FOF_NOERRORUI | FOF_WANTNUKEWARNING;
    const int error = ::SHFileOperationW(&operation);
    if (error == 0 && !operation.fAnyOperationsAborted && !anythingExists(path))
        return Done{};
    if (operation.fAnyOperationsAborted)
        return Failure{"Operation was canceled"};
    return Failure{"Error " + std::to_string(error)};
}

} // namespace vantrel
