#pragma once

#include "base/FolderListing.h"
#include "base/Result.h"

#include <string>

namespace vantrel {

/// All entries of a PC folder, sub-folders included, in the system's order. An entry whose details
/// cannot be read is listed as an empty file without a date. Fails only when the folder itself
/// cannot be opened.
Result<FolderListing> scanFolder(const std::string& folder);

} // namespace vantrel
