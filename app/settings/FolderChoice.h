#pragma once

#include "files/FolderTree.h"
#include "platform/Drives.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace vantrel {

/// What a choice of a folder sees of the disks.
struct FolderChoiceSource {
    std::function<std::vector<Drive>()> drives;
    std::function<std::vector<std::string>(const std::string& folder)> subfolders;
    std::function<std::vector<std::string>(const std::string& folder)> files;
    /// Told without touching the folder.
    std::function<bool(const std::string& folder)> isOnNetwork;
};

/// The choice of a folder by `Drive1`, `Dir1` and `File1`, without their window. Levels of the tree
/// are read when they are opened. A folder on a network is shown without being read until the
/// operator turns to it: the machine that it is on may be off, and reading would hang.
class FolderChoice {
  public:
    explicit FolderChoice(FolderChoiceSource sources, PathRules rules = PathRules());

    const std::string& folder() const { return folder_; }
    const std::vector<Drive>& drives() const { return drives_; }
    /// The drive that the folder is on, if it is one of them.
    std::optional<std::size_t> drive() const;
    const FolderTree& tree() const { return tree_; }
    /// The files in the folder.
    const std::vector<std::string>& files() const { return files_; }

    /// Shows a folder that was stored, whether or not it can be reached.
    void show(const std::string& folder);
    /// The operator has turned to a drive: its root is the folder.
    void chooseDrive(std::size_t index);
    /// The operator has turned to a folder of the tree.
    void choose(FolderTree::Id node);
    /// Reads what is below a node.
    const std::vector<FolderTree::Id>& open(FolderTree::Id node);

  private:
    FolderChoiceSource sources_;
    PathRules rules_;
    std::vector<Drive> drives_;
    std::string folder_;
    FolderTree tree_;
    std::vector<std::string> files_;
};

} // namespace vantrel
