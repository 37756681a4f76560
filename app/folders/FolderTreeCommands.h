#pragma once

#include "app/commands/MainServices.h"
#include "files/FolderTree.h"
#include "platform/Drives.h"

#include <functional>
#include <vector>

namespace vantrel {

class FolderTree;
class MainCommands;

/// `trvFolderList` as the commands see it. Nothing that it is told raises an event of the operator.
class FolderTreeView {
  public:
    virtual ~FolderTreeView() = default;
    /// Shows these nodes in place of the old ones.
    virtual void showTree(const FolderTree& tree) = 0;
    /// Lets the tree drop down with the keyboard focus, or hides it.
    virtual void dropDown(bool isDown) = 0;
};

/// What the folder tree needs of the system.
struct FolderTreeSource {
    std::function<std::vector<Drive>()> drives;
    FolderTree::ListSubfolders subfolders;
};

/// The commands of `Command1` and of the nodes in `trvFolderList`.
class FolderTreeCommands {
  public:
    FolderTreeCommands(const MainServices& services, MainCommands& commands, FolderTreeView& view,
                       FolderTreeSource source);

    /// Lets the tree drop down, built anew for the PC folder.
    void drop();
    /// The folders below a node, read when it is opened for the first time. The nodes' ids hold
    /// until the tree is built anew.
    std::vector<FolderTree::Id> open(FolderTree::Id id);
    const FolderTree& tree() const;
    /// Lists the node's folder in the PC pane. A folder that cannot be opened is named, and
    /// everything stays as it was.
    void choose(FolderTree::Id id);

  private:
    MainServices with_;
    MainCommands& commands_;
    FolderTreeView& view_;
    FolderTreeSource source_;
};

} // namespace vantrel
