#include "files/FolderFiles.h"

#include "base/PathRules.h"
#include "platform/Files.h"
#include "platform/TextCase.h"

#include <algorithm>
#include <string_view>
#include <unordered_set>
#include <utility>

namespace vantrel {

// Names only: the details of an entry on which a dead medium is mounted would hang the caller.
std::vector<std::string> folderFiles(const std::string& folder) {
    const std::string path = PathRules().withSeparator(folder);
    std::unordered_set<std::string> folders;
    (void)visitSubfolders(path, [&folders](std::string_view name) { folders.emplace(name); });
    UpperCaseMapping upperCase;
    std::vector<std::pair<std::string, std::string>> found; // sort key, name
    (void)visitNames(path, [&](std::string_view name) {
        if (std::string file(name); !folders.contains(file))
            found.emplace_back(upperCase.of(name), std::move(file));
    });
    std::ranges::sort(found);
    std::vector<std::string> files;
    files.reserve(found.size());
    for (auto& [key, name] : found)
        files.push_back(std::move(name));
    return files;
}

} // namespace vantrel
