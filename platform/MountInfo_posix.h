#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vantrel {

/// One line of /proc/self/mountinfo, such as
/// "36 35 8:1 / /media/op/STICK rw shared:1 - vfat /dev/sdb1 rw".
struct Mount {
    std::string place; ///< the folder on which it is mounted
    std::string_view fileSystem;
};

/// Nothing for what is no such line, one cut off in its middle for instance.
std::optional<Mount> mountOfLine(std::string_view line);

} // namespace vantrel
