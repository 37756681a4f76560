#pragma once

#include "base/RobotRecord.h"

#include <string>
#include <string_view>
#include <vector>

namespace vantrel {

class RobotPaths;

/// A name without anything that a reader of the file may take off it: cut at the first delimiter,
/// without outer blanks and enclosing quotes. Empty for a name that cannot be kept at all, such as
/// the sentinel's.
std::string cleanName(std::string_view name);

/// A folder in a form that is read back as the same folder: as it stands, else the way from the
/// base folder, else empty, which is read as the program's folder.
std::string writableFolder(std::string_view folder, const RobotPaths& paths);

/// The whole file: the boot robot's name and one block per robot up to the sentinel; lines end in
/// CR LF. Names stay as they are, since " R1" and "R1" may be two robots; only the boot name, which
/// the profile functions read, stands in quotes where they would strip something off it.
std::string registryText(std::string_view bootName, const std::vector<RobotRecord>& robots,
                         const RobotPaths& paths);

} // namespace vantrel
