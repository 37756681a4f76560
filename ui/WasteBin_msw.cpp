#include "platform/Files.h"
#include "ui/WasteBin.h"
#include "ui/look/WxText.h"

#include <shellapi.h>
#include <wx/msw/wrapwin.h>

namespace vantrel {

/// Where a disk has no bin the system asks itself before it deletes for good.
Outcome moveToWasteBin(const std::string& path) {
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
