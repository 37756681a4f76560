#pragma once

#include <string>
#include <vector>

namespace vantrel {

/// The names of what lies in a folder and is no folder, sorted without regard to letter case. A
/// folder that cannot be read has none.
std::vector<std::string> folderFiles(const std::string& folder);

} // namespace vantrel
