#include "files/FolderTree.h"

#include "base/TextCase.h"

#include <algorithm>
#include <utility>

namespace vantrel {

namespace {
constexpr std::string_view driveImage = "drive";
constexpr std::string_view folderImage = "open";
} // namespace

FolderTree FolderTree::whole(const std::string& folder, const std::vector<Drive>& drives,
                             const ListSubfolders& list, PathRules rules) {
    FolderTree tree(rules);
    for (const auto& drive : drives)
        tree.add({drive.text, driveImage, drive.path, {}}, none);
    const auto parts = tree.parts(folder);
    Id at = tree.rootFor(parts);
    if (at == none && folder.empty())
        return tree;
    if (at == none)
        at = tree.missingRoot(folder);
    const auto above = tree.parts(tree.node(at).path).size();
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

/// The drive that the path is on: of a medium and the drive that it is mounted on the medium.
FolderTree::Id FolderTree::rootFor(const std::vector<std::string>& path) const {
    const auto sameName = [this](const auto& left, const auto& right) {
        return isSameName(left, right);
    };
    Id best = none;
    std::size_t longest = 0;
    for (const Id root : roots_) {
        const auto drive = parts(nodes_[root].path);
        const bool holds = drive.size() <= path.size() &&
                           std::equal(drive.begin(), drive.end(), path.begin(), sameName);
        if (holds && drive.size() > longest) {
            best = root;
            longest = drive.size();
        }
    }
    return best;
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
        if (isSameName(nodes_[id].text, name))
            return id;
    return addFolder(parent, name);
}

/// The drive and the names below it.
std::vector<std::string> FolderTree::parts(std::string_view path) const {
    const std::string drive = rules_.drive(path);
    std::vector<std::string> parts;
    if (!drive.empty())
        parts.push_back(drive);
    std::string name;
    for (const char character : path.substr(drive.size())) {
        if (!rules_.isSeparator(character))
            name += character;
        else if (!name.empty())
            parts.push_back(std::exchange(name, {}));
    }
    if (!name.empty())
        parts.push_back(name);
    return parts;
}

bool FolderTree::isSameName(std::string_view left, std::string_view right) const {
    return left == right ||
           (rules_.style() == PathStyle::Windows && upperCase(left) == upperCase(right));
}

} // namespace vantrel
