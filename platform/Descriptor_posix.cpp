#include "platform/Descriptor_posix.h"

#include <system_error>

namespace vantrel {

Failure systemFailure(int errorNumber) {
    return Failure{std::generic_category().message(errorNumber)};
}

bool hasNul(std::string_view path) {
    return path.find('\0') != std::string_view::npos;
}

bool readDetails(const std::string& path, struct stat& details) {
    if (hasNul(path)) {
        errno = EINVAL;
        return false;
    }
    return ::stat(path.c_str(), &details) == 0;
}

int writeAll(int descriptor, std::string_view content) {
    while (!content.empty()) {
        const auto written = ::write(descriptor, content.data(), content.size());
        if (written < 0 && errno != EINTR)
            return errno;
        content.remove_prefix(written < 0 ? 0 : static_cast<std::size_t>(written));
    }
    return 0;
}

} // namespace vantrel
