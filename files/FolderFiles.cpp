#include "files/FolderFiles.h"

#include "base/PathRules.h"
#include "files/NameOrder.h"
#include "platform/Files.h"

#include <string_view>
#include <unordered_set>
#include <utility>

namespace vantrel {

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

} // namespace vantrel
