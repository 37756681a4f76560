#include "history/HistoryTrees.h"

#include <cstddef>

namespace vantrel {

bool isPlainFile(const git_tree_entry* entry) {
    const git_filemode_t mode = git_tree_entry_filemode(entry);
    return mode == GIT_FILEMODE_BLOB || mode == GIT_FILEMODE_BLOB_EXECUTABLE;
}

Result<GitTree> treeOf(git_repository* repository, const git_oid& commit) {
    const auto found = gitMade<GitCommit>(
        [&](git_commit** made) { return git_commit_lookup(made, repository, &commit); });
    if (!found)
        return Failure{found.reason()};
    return gitMade<GitTree>([&](git_tree** made) { return git_commit_tree(made, found->get()); });
}

Places placesIn(const git_tree* tree, git_object_t kind) {
    Places places;
    const std::size_t count = tree ? git_tree_entrycount(tree) : 0;
    for (std::size_t at = 0; at < count; ++at) {
        const git_tree_entry* const entry = git_tree_entry_byindex(tree, at);
        const bool isLeadingElsewhere = kind == GIT_OBJECT_BLOB && !isPlainFile(entry);
        const bool isOfKind = git_tree_entry_type(entry) == kind && !isLeadingElsewhere;
        (isOfKind ? places.ofKind : places.others).emplace_back(git_tree_entry_name(entry));
    }
    return places;
}

Result<GitTree> folderIn(git_repository* repository, const git_tree* root,
                         const std::string& place) {
    const git_tree_entry* const entry = git_tree_entry_byname(root, place.c_str());
    if (!entry || git_tree_entry_type(entry) != GIT_OBJECT_TREE)
        return GitTree();
    return gitMade<GitTree>([&](git_tree** made) {
        return git_tree_lookup(made, repository, git_tree_entry_id(entry));
    });
}

std::map<std::string, git_oid> filesOf(const git_tree* folder) {
    std::map<std::string, git_oid> files;
    const std::size_t count = folder ? git_tree_entrycount(folder) : 0;
    for (std::size_t at = 0; at < count; ++at) {
        const git_tree_entry* const entry = git_tree_entry_byindex(folder, at);
        if (isPlainFile(entry))
            files.emplace(git_tree_entry_name(entry), *git_tree_entry_id(entry));
    }
    return files;
}

} // namespace vantrel
