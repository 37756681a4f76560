#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vantrel {

/// A drive or removable medium, the top of a folder tree.
struct Drive {
    std::string path; ///< its root folder: "C:\", "/", "/media/operator/STICK"
    std::string text; ///< to show: "C: [label]", "/", "STICK [/media/operator/STICK]"

    bool operator==(const Drive&) const = default;
};

/// The system's drives: on Windows one per drive letter, elsewhere "/" and one per mounted medium.
/// No medium is touched for it, so a dead one cannot hang the caller.
std::vector<Drive> listDrives();

/// The drives by the text of /proc/self/mountinfo: "/" and what is mounted below /media, /run/media
/// and /mnt, each once, in the order of mounting. Lines that are none are passed over.
std::vector<Drive> drivesOfMounts(std::string_view mountInfo);

/// Whether a folder lies on another machine, told without touching it: reading there may hang when
/// that machine is off.
bool isOnNetwork(const std::string& folder);

/// The same by the text of /proc/self/mountinfo. Of nested mounts the innermost counts, of several
/// on one place the last. Lines that are none are passed over.
bool isOnNetwork(std::string_view folder, std::string_view mountInfo);

} // namespace vantrel
