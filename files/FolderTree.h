#pragma once

#include "base/PathRules.h"
#include "platform/Drives.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vantrel {

/// The one node of the path display.
struct FolderNode {
    std::string text;
    std::string_view image; ///< "drive" or "open"

    bool operator==(const FolderNode&) const = default;
};

/// A root shows its drive ("C:", "\\server\share", "/"), any other folder its last name.
FolderNode folderNode(std::string_view folder, const PathRules& rules = PathRules());

/// The drive that holds a folder, the innermost of several; nothing when none does.
std::optional<std::size_t> driveOf(std::string_view folder, const std::vector<Drive>& drives,
                                   const PathRules& rules);

struct FolderTreeNode {
    std::string text;
    std::string_view image; ///< "drive" or "open"
    std::string path;       ///< the folder it stands for; only a root ends in a separator
    std::vector<std::size_t> children;
    bool childrenRead = false;
    bool expanded = false;
};

/// What `trvFolderList` shows. A value without a window or a disk: sub-folders are asked for one
/// level at a time, when a node is opened, so that links in a circle cannot run away.
class FolderTree {
  public:
    using Id = std::size_t;
    /// The names of a folder's sub-folders in the order to show.
    using ListSubfolders = std::function<std::vector<std::string>(const std::string& path)>;
    static constexpr Id none = static_cast<Id>(-1);

    explicit FolderTree(PathRules rules = PathRules()) : rules_(rules) {}

    /// All drives, and below the one that holds `folder` every folder down to it opened; its node
    /// is selected. A drive that is missing is added, and so is a folder that its parent does not
    /// show.
    static FolderTree whole(const std::string& folder, const std::vector<Drive>& drives,
                            const ListSubfolders& list, PathRules rules = PathRules());
    /// The drive, and below it one node for all the rest of the path.
    static FolderTree driveAndFolder(const std::string& folder, PathRules rules = PathRules());
    /// One node that shows the whole path.
    static FolderTree folderOnly(const std::string& folder);
    /// The node alone.
    static FolderTree nodeOnly(const FolderTreeNode& node);

    const std::vector<Id>& roots() const { return roots_; }
    const FolderTreeNode& node(Id id) const { return nodes_.at(id); }
    bool has(Id id) const { return id < nodes_.size(); }
    Id selected() const { return selected_; }

    /// Reads a node's children unless they have been read.
    void read(Id id, const ListSubfolders& list);

  private:
    Id add(FolderTreeNode node, Id parent);
    Id addFolder(Id parent, const std::string& name);
    Id missingRoot(const std::string& folder);
    Id child(Id parent, const std::string& name);

    PathRules rules_;
    std::vector<FolderTreeNode> nodes_;
    std::vector<Id> roots_;
    Id selected_ = none;
};

} // namespace vantrel
