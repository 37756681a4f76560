#include "platform/Links.h"
#include "platform/System_windows.h"

namespace vantrel {

bool isLink(const std::string& path) {
    const DWORD attributes = ::GetFileAttributesW(systemPath(path).c_str());
    return attributes != INVALID_FILE_ATTRIBUTES &&
           (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
}

} // namespace vantrel
