#include "files/FolderScan.h"

#include "base/PathRules.h"
#include "platform/Files.h"

#include <algorithm>
#include <limits>

namespace vantrel {

namespace {

std::int32_t listedSize(const FolderEntry& entry) {
    constexpr std::uint64_t largest = std::numeric_limits<std::int32_t>::max();
    return entry.isFolder ? FolderListing::folderSize
                          : static_cast<std::int32_t>(std::min(entry.size, largest));
}

} // namespace

Result<FolderListing> scanFolder(const std::string& folder) {
    FolderListing listing;
    listing.Path = folder;
    const Outcome visited =
        visitFolder(PathRules().withSeparator(folder), [&listing](const FolderEntry& entry) {
            listing.append(std::string(entry.name), listedSize(entry), entry.changed);
        });
    if (!visited)
        return Failure{visited.reason()};
    return listing;
}

} // namespace vantrel
