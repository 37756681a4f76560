#pragma once

#include <string>
#include <vector>

namespace vantrel {

/// The names of a folder's sub-folders, hidden ones included, sorted without regard to letter case.
/// A folder that cannot be read has none.
std::vector<std::string> subfolders(const std::string& folder);

} // namespace vantrel
