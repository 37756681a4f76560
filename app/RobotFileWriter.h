#pragma once

#include "base/RobotRecord.h"

#include <string>
#include <string_view>
#include <vector>

namespace vantrel {

class RobotPaths;

/// A name in the form in which both readers of the file give it back unchanged: cut at the first
/// delimiter, without outer blanks and enclosing quotes, which the profile functions strip from the
/// boot name. Empty for a name that cannot be kept at all, such as the sentinel's.
std::string writableName(std::string_view name);

/// A folder in a form that is read back as the same folder: as it stands, else the way from the
/// base folder, else empty, which is read as the program's folder.
std::string writableFolder(std::string_view folder, const RobotPaths& paths);

/// The whole file: the boot robot's name and one block per robot up to the sentinel; lines end in
/// CR LF.
std::string registryText(std::string_view bootName, const std::vector<RobotRecord>& robots,
                         const RobotPaths& paths);

} // namespace vantrel
