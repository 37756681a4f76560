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
    if (!panes_.scanPC(folder))
        return false;
    window_.showFolder(state_.PCPath);
    treeView_.dropDown(false);
    showTree(std::move(tree));
    if (!panes_.fill(ActiveSide::PC))
        talk_.tell(listNotShown, BoxIcon::Exclamation);
    return true;
}

void PCFolder::showTree(FolderTree tree) {
    tree_ = std::move(tree);
    treeView_.showTree(tree_);
}

} // namespace vantrel
