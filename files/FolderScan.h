#pragma once

#include "base/FolderListing.h"
#include "base/Result.h"

#include <string>
#include <string_view>
#include <vector>

namespace vantrel {

/// Where a delivery waits in the program's folder, and what was delivered last: the program's own.
inline constexpr std::string_view deliveredFolder = ".installed";

/// Names in the order in which folders and files are listed beside each other: without regard to
/// letter case, equal ones by their bytes.
std::vector<std::string> inNameOrder(std::vector<std::string> names);

/// The names of a folder's sub-folders, hidden ones included but for `deliveredFolder`, sorted
/// without regard to letter case.
/// A folder that cannot be read has none.
std::vector<std::string> subfolders(const std::string& folder);

/// The names of what lies in a folder and is no folder, sorted without regard to letter case. A
/// folder that cannot be read has none.
std::vector<std::string> folderFiles(const std::string& folder);

/// All entries of a PC folder, sub-folders included, in the system's order. An entry whose details
/// cannot be read is listed as an empty file without a date. Fails when the folder cannot be opened
/// or not be listed to its end: half a list would look like a whole one.
Result<FolderListing> scanFolder(const std::string& folder);

} // namespace vantrel
