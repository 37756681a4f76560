#pragma once

#include "history/GitHandles.h"

#include <map>
#include <string>
#include <vector>

namespace vantrel {

/// The tree of a commit.
Result<GitTree> treeOf(git_repository* repository, const git_oid& commit);
bool isPlainFile(const git_tree_entry* entry);
/// The names of the entries of this kind, and of all others.
struct Places {
    std::vector<std::string> ofKind{};
    std::vector<std::string> others{};
};
Places placesIn(const git_tree* tree, git_object_t kind);
/// The tree of a folder, such as a robot's; null where there is none.
Result<GitTree> folderIn(git_repository* repository, const git_tree* root,
                         const std::string& place);
/// The plain files of a folder by their places; those of none are none.
std::map<std::string, git_oid> filesOf(const git_tree* folder);

} // namespace vantrel
