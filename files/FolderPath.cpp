#include "files/FolderPath.h"

namespace vantrel {

FolderNode folderNode(std::string_view folder, const PathRules& rules) {
    if (rules.isRoot(folder))
        return {rules.drive(folder), "drive"};
    return {rules.lastName(rules.withoutTrailingSeparator(folder)), "open"};
}

} // namespace vantrel
