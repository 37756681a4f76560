#include "base/PathRules.h"
#include "base/Text.h"
#include "platform/Drives.h"
#include "platform/Files.h"
#include "platform/MountInfo_posix.h"

#include <array>
#include <unordered_set>

namespace vantrel {

namespace {

/// Where desktops and administrators mount what comes and goes. A name that is no UTF-8 could not
/// be shown.
bool isMedium(std::string_view path) {
    static constexpr std::array<std::string_view, 3> places{"/media/", "/run/media/", "/mnt/"};
    for (const auto place : places)
        if (path.size() > place.size() && path.starts_with(place))
            return isValidUtf8(path);
    return false;
}

} // namespace

std::vector<Drive> drivesOfMounts(std::string_view mountInfo) {
    std::vector<Drive> drives{{"/", "/"}};
    std::unordered_set<std::string> known;
    while (!mountInfo.empty()) {
        const auto mount = mountOfLine(takeLine(mountInfo));
        if (!mount || !isMedium(mount->place) || !known.insert(mount->place).second)
            continue;
        const std::string& path = mount->place;
        drives.push_back({path, PathRules(PathStyle::Posix).lastName(path) + " [" + path + "]"});
    }
    return drives;
}

std::vector<Drive> listDrives() {
    const auto mounts = readFile("/proc/self/mountinfo");
    return drivesOfMounts(mounts ? std::string_view(*mounts) : std::string_view());
}

} // namespace vantrel
