#pragma once

namespace vantrel {

class FolderTree;

/// `trvFolderList` as the commands see it. Nothing that it is told raises an event of the operator.
class FolderTreeView {
  public:
    virtual ~FolderTreeView() = default;
    /// Shows these nodes in place of the old ones.
    virtual void showTree(const FolderTree& tree) = 0;
    /// Lets the tree drop down with the keyboard focus, or hides it.
    virtual void dropDown(bool isDown) = 0;
};

} // namespace vantrel
