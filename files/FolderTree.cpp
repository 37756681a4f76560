#include "files/FolderTree.h"

#include "base/TextCase.h"

#include <algorithm>
#include <utility>

namespace vantrel {
namespace {

constexpr std::string_view driveImage = "drive";
constexpr std::string_view folderImage = "open";

/// The drive and the names below it.
std::vector<std::string> partsOf(std::string_view path, const PathRules& rules) {
    const std::string drive = rules.drive(path);
    std::vector<std::string> parts;
    if (!drive.empty())
        parts.push_back(drive);
    std::string name;
    for (const char character : path.substr(drive.size())) {
        if (!rules.isSeparator(character))
            name += character;
        else if (!name.empty())
            parts.push_back(std::exchange(name, {}));
    }
    if (!name.empty())
        parts.push_back(name);
    return parts;
}

bool isSameName(std::string_view left, std::string_view right, const PathRules& rules) {
    return left == right ||
           (rules.style() == PathStyle::Windows && upperCase(left) == upperCase(right));
}

} // namespace

FolderNode folderNode(std::string_view folder, const PathRules& rules) {
    if (rules.isRoot(folder))
        return {rules.drive(folder), driveImage};
    return {rules.lastName(rules.withoutTrailingSeparator(folder)), folderImage};
}

std::optional<std::size_t> driveOf(std::string_view folder, const std::vector<Drive>& drives,
                                   const PathRules& rules) {
    const auto path = partsOf(folder, rules);
    const auto sameName = [&rules](const auto& left, const auto& right) {
        return isSameName(left, right, rules);
    };
    std::optional<std::size_t> best;
    std::size_t longest = 0;
    for (std::size_t index = 0; index < drives.size(); ++index) {
        const auto root = partsOf(drives[index].path, rules);
        const bool holds = root.size() > longest && root.size() <= path.size() &&
                           std::equal(root.begin(), root.end(), path.begin(), sameName);
        if (!holds)
            continue;
        best = index;
        longest = root.size();
    }
    return best;
}

FolderTree FolderTree::whole(const std::string& folder, const std::vector<Drive>& drives,
                             const ListSubfolders& list, PathRules rules) {
    FolderTree tree(rules);
    for (const auto& drive : drives)
        tree.add({drive.text, driveImage, drive.path, {}}, none);
    const auto drive = driveOf(folder, drives, rules);
    if (!drive && folder.empty())
        return tree;
    Id at = drive ? tree.roots_[*drive] : tree.missingRoot(folder);
    const auto parts = partsOf(folder, rules);
    const auto above = partsOf(tree.node(at).path, rules).size();
    for (std::size_t part = above; part < parts.size(); ++part) {
        tree.read(at, list);
        tree.nodes_[at].expanded = true;
        at = tree.child(at, parts[part]);
    }
    // The folder's own level too: going down one is what the tree is opened for most.
    tree.read(at, list);
    tree.nodes_[at].expanded = true;
    tree.selected_ = at;
    return tree;
}

FolderTree FolderTree::driveAndFolder(const std::string& folder, PathRules rules) {
    FolderTree tree(rules);
    const Id root = tree.missingRoot(folder);
    tree.selected_ = root;
    const std::string drive = rules.drive(folder);
    const std::string path = rules.withoutTrailingSeparator(folder);
    const auto rest = path.find_first_not_of(rules.separators(), drive.size());
    if (!drive.empty() && rest != path.npos) {
        tree.nodes_[root].expanded = true;
        tree.selected_ = tree.add({path.substr(rest), folderImage, path, {}}, root);
    }
    return tree;
}

FolderTree FolderTree::folderOnly(const std::string& folder) {
    return nodeOnly({folder, folderImage, folder, {}});
}

FolderTree FolderTree::nodeOnly(const FolderTreeNode& node) {
    FolderTree tree;
    tree.selected_ = tree.add({node.text, node.image, node.path, {}}, none);
    return tree;
}

void FolderTree::read(Id id, const ListSubfolders& list) {
    if (std::exchange(nodes_.at(id).childrenRead, true))
        return;
    for (const auto& name : list(nodes_[id].path))
        addFolder(id, name);
}

FolderTree::Id FolderTree::add(FolderTreeNode node, Id parent) {
    const Id id = nodes_.size();
    nodes_.push_back(std::move(node));
    (parent == none ? roots_ : nodes_[parent].children).push_back(id);
    return id;
}

FolderTree::Id FolderTree::addFolder(Id parent, const std::string& name) {
    return add({name, folderImage, rules_.join(nodes_[parent].path, name), {}}, parent);
}

/// A share, or a drive that the system does not list; a path without a drive is taken whole.
FolderTree::Id FolderTree::missingRoot(const std::string& folder) {
    const std::string drive = rules_.drive(folder);
    if (drive.empty())
        return add({folder, folderImage, folder, {}}, none);
    return add({drive, driveImage, rules_.withSeparator(drive), {}}, none);
}

FolderTree::Id FolderTree::child(Id parent, const std::string& name) {
    for (const Id id : nodes_[parent].children)
        if (isSameName(nodes_[id].text, name, rules_))
            return id;
    return addFolder(parent, name);
}

} // namespace vantrel
