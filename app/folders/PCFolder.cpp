#include "app/folders/PCFolder.h"

#include "app/commands/MainServices.h"
#include "app/folders/FolderTreeCommands.h"
#include "base/ApplicationState.h"
#include "files/PaneRefresh.h"
#include "files/Panes.h"
#include "link/OperatorTalk.h"

#include <utility>

namespace vantrel {

bool PCFolder::enter(const std::string& folder, FolderTree tree) {
    // The folder that the program has begun with.
    if (state_.PCListing.isRead)
        history_.visited(state_.PCPath);
    if (!panes_.scanPC(folder))
        return false;
    history_.visited(state_.PCPath);
    panes_.setNameFilter(ActiveSide::PC, {});
    window_.closeQuickFilter(ActiveSide::PC);
    window_.showFolder(state_.PCPath);
    treeView_.dropDown(false);
    showTree(std::move(tree));
    if (!panes_.fill(ActiveSide::PC))
        talk_.tell(listNotShown, BoxIcon::Exclamation);
    return true;
}

bool PCFolder::step(int steps) {
    const std::string folder = history_.neighbour(steps);
    const FolderHistory before = history_;
    const bool isEntered = enter(folder, FolderTree::driveAndFolder(folder));
    history_ = before; // going there is no new visit
    if (isEntered)
        history_.step(steps);
    else
        history_.forgetNeighbour(steps);
    return isEntered;
}

void PCFolder::showTree(FolderTree tree) {
    tree_ = std::move(tree);
    treeView_.showTree(tree_);
}

} // namespace vantrel
