#include "files/FolderScan.h"

#include "base/PathRules.h"
#include "base/TextCase.h"
#include "platform/Files.h"

#include <algorithm>
#include <limits>
#include <string_view>
#include <unordered_set>
#include <utility>

namespace vantrel {
namespace {

std::int32_t listedSize(const FolderEntry& entry) {
    constexpr std::uint64_t largest = std::numeric_limits<std::int32_t>::max();
    return entry.isFolder ? FolderListing::folderSize
                          : static_cast<std::int32_t>(std::min(entry.size, largest));
}

} // namespace

std::vector<std::string> inNameOrder(std::vector<std::string> names) {
    std::vector<std::pair<std::string, std::string>> keyed; // upper case, name
    keyed.reserve(names.size());
    for (auto& name : names) {
        std::string key = upperCase(name);
        keyed.emplace_back(std::move(key), std::move(name));
    }
    std::ranges::sort(keyed);
    std::ranges::transform(keyed, names.begin(), [](auto& row) { return std::move(row.second); });
    return names;
}

std::vector<std::string> subfolders(const std::string& folder) {
    std::vector<std::string> found;
    // Names that were read before a failure are as good as any.
    (void)visitSubfolders(PathRules().withSeparator(folder), [&found](std::string_view name) {
        if (name != deliveredFolder)
            found.emplace_back(name);
    });
    return inNameOrder(std::move(found));
}

// Names only: the details of an entry on which a dead medium is mounted would hang the caller.
std::vector<std::string> folderFiles(const std::string& folder) {
    const std::string path = PathRules().withSeparator(folder);
    std::unordered_set<std::string> folders;
    (void)visitSubfolders(path, [&folders](std::string_view name) { folders.emplace(name); });
    std::vector<std::string> found;
    (void)visitNames(path, [&](std::string_view name) {
        if (std::string file(name); !folders.contains(file))
            found.push_back(std::move(file));
    });
    return inNameOrder(std::move(found));
}

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
