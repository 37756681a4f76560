#include "platform/Links.h"

#include <sys/stat.h>

namespace vantrel {

bool isLink(const std::string& path) {
    struct stat details {};
    return ::lstat(path.c_str(), &details) == 0 && S_ISLNK(details.st_mode);
}

} // namespace vantrel
