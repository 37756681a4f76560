#include "base/Text.h"
#include "platform/Files.h"
#include "platform/MountInfo_posix.h"
#include "platform/NetworkFolders.h"

#include <algorithm>
#include <array>

namespace vantrel {

namespace {

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
