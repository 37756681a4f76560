#pragma once

#include <string>

#ifdef _WIN32
#include "platform/System_windows.h"
#endif

namespace vantrel::tests {

/// The words in which this system says why something failed; on Windows in the operator's language.
#ifdef _WIN32
inline std::string noSuchFile() {
    return systemFailure(ERROR_FILE_NOT_FOUND).reason;
}
inline std::string noSuchFolder() {
    return systemFailure(ERROR_PATH_NOT_FOUND).reason;
}
inline std::string isAFolder() {
    return "Is a folder";
}
#else
inline std::string noSuchFile() {
    return "No such file or directory";
}
inline std::string noSuchFolder() {
    return noSuchFile();
}
inline std::string isAFolder() {
    return "Is a directory";
}
#endif

} // namespace vantrel::tests
