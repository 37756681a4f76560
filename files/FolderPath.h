#pragma once

#include "base/PathRules.h"

#include <string>
#include <string_view>

namespace vantrel {

/// The one node of the path display.
struct FolderNode {
    std::string text;
    std::string_view image; ///< "drive" or "open"

    bool operator==(const FolderNode&) const = default;
};

/// A root shows its drive ("C:", "\\server\share", "/"), any other folder its last name.
FolderNode folderNode(std::string_view folder, const PathRules& rules = PathRules());

} // namespace vantrel
