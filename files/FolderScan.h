#pragma once

#include "base/FolderListing.h"
#include "base/Result.h"

#include <string>

namespace vantrel {

/// All entries of a PC folder, sub-folders included, in the system's order. An entry whose details
/// cannot be read is listed as an empty file without a date. Fails when the folder cannot be opened
/// or not be listed to its end: half a list would look like a whole one.
Result<FolderListing> scanFolder(const std::string& folder);

} // namespace vantrel
