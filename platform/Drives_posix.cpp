#include "base/PathRules.h"
#include "base/Text.h"
#include "platform/Drives.h"
#include "platform/Files.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <unordered_set>

namespace vantrel {
namespace {

/// One line of /proc/self/mountinfo, such as
/// "36 35 8:1 / /media/op/STICK rw shared:1 - vfat /dev/sdb1 rw".
struct Mount {
    std::string place; ///< the folder on which it is mounted
    std::string_view fileSystem;
};

constexpr std::size_t mountPointField = 4;

/// The character that "\ooo" at `start` stands for; nothing when there is no such escape.
std::optional<char> octalEscape(std::string_view text, std::size_t start) {
    if (text.size() - start < 4 || text[start] != '\\')
        return {};
    unsigned value = 0;
    for (const char digit : text.substr(start + 1, 3)) {
        if (digit < '0' || digit > '7')
            return {};
        value = value * 8 + static_cast<unsigned>(digit - '0');
    }
    // A path holds no NUL, so that is no escape either.
    return value > 0 && value < 256 ? std::optional(static_cast<char>(value)) : std::nullopt;
}

std::string unescaped(std::string_view text) {
    std::string result;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const auto character = octalEscape(text, at);
        result += character.value_or(text[at]);
        at += character ? 3 : 0;
    }
    return result;
}

/// Nothing for what is no such line, one cut off in its middle for instance.
std::optional<Mount> mountOfLine(std::string_view line) {
    constexpr std::string_view beforeFileSystem = " - ";
    for (std::size_t field = 0; field < mountPointField; ++field) {
        const auto end = line.find(' ');
        if (end == line.npos)
            return {};
        line.remove_prefix(end + 1);
    }
    const auto separator = line.find(beforeFileSystem);
    if (separator == line.npos)
        return {};
    const auto kind = line.substr(separator + beforeFileSystem.size());
    return Mount{unescaped(line.substr(0, line.find(' '))), kind.substr(0, kind.find(' '))};
}

/// Where desktops and administrators mount what comes and goes. A name that is no UTF-8 could not
/// be shown.
bool isMedium(std::string_view path) {
    static constexpr std::array<std::string_view, 3> places{"/media/", "/run/media/", "/mnt/"};
    for (const auto place : places)
        if (path.size() > place.size() && path.starts_with(place))
            return isValidUtf8(path);
    return false;
}

/// File systems of other machines, and the one that mounts them when they are entered. What a
/// program mounts ("fuse.") may be anywhere.
bool isNetworkFileSystem(std::string_view name) {
    static constexpr std::array<std::string_view, 12> network{"nfs",   "nfs4",  "cifs",   "smb3",
                                                              "smbfs", "ncpfs", "afs",    "9p",
                                                              "ceph",  "davfs", "autofs", "coda"};
    return name.starts_with("fuse.") || std::ranges::find(network, name) != network.end();
}

bool isWithin(std::string_view folder, std::string_view place) {
    if (place == "/")
        return folder.starts_with('/');
    return folder.starts_with(place) &&
           (folder.size() == place.size() || folder[place.size()] == '/');
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

bool isOnNetwork(std::string_view folder, std::string_view mountInfo) {
    std::size_t longest = 0;
    bool network = false;
    while (!mountInfo.empty()) {
        const auto mount = mountOfLine(takeLine(mountInfo));
        if (!mount || mount->place.size() < longest || !isWithin(folder, mount->place))
            continue;
        longest = mount->place.size();
        network = isNetworkFileSystem(mount->fileSystem);
    }
    return network;
}

bool isOnNetwork(const std::string& folder) {
    const auto mounts = readFile("/proc/self/mountinfo");
    return mounts && isOnNetwork(folder, *mounts);
}

} // namespace vantrel
