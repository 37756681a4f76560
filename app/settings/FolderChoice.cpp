#include "app/settings/FolderChoice.h"

#include <utility>

namespace vantrel {

FolderChoice::FolderChoice(FolderChoiceSource sources, PathRules rules)
    : sources_(std::move(sources)), rules_(rules), drives_(sources_.drives()), tree_(rules) {}

std::optional<std::size_t> FolderChoice::drive() const {
    return driveOf(folder_, drives_, rules_);
}

void FolderChoice::show(const std::string& folder) {
    folder_ = folder;
    const bool isReadAtOnce = !folder.empty() && !sources_.isOnNetwork(folder);
    tree_ = isReadAtOnce ? FolderTree::whole(folder, drives_, sources_.subfolders, rules_)
                         : FolderTree::driveAndFolder(folder, rules_);
    files_ = isReadAtOnce ? sources_.files(folder) : std::vector<std::string>();
}

void FolderChoice::chooseDrive(std::size_t index) {
    if (index >= drives_.size())
        return;
    folder_ = drives_[index].path;
    tree_ = FolderTree::whole(folder_, drives_, sources_.subfolders, rules_);
    files_ = sources_.files(folder_);
}

void FolderChoice::choose(FolderTree::Id node) {
    if (!tree_.has(node))
        return;
    folder_ = tree_.node(node).path;
    files_ = sources_.files(folder_);
}

const std::vector<FolderTree::Id>& FolderChoice::open(FolderTree::Id node) {
    tree_.read(node, sources_.subfolders);
    return tree_.node(node).children;
}

} // namespace vantrel
