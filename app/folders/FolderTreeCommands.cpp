#include "app/folders/FolderTreeCommands.h"

#include "app/commands/MainCommands.h"
#include "app/folders/PCFolder.h"
#include "files/PaneWindow.h"
#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "link/OperatorTalk.h"
#include "link/ShownText.h"

#include <utility>

namespace vantrel {

FolderTreeCommands::FolderTreeCommands(const MainServices& services, MainCommands& commands,
                                       FolderTreeView& view, FolderTreeSource source)
    : with_(services), commands_(commands), view_(view), source_(std::move(source)) {}

/// A press in the PC pane: keys in the tree must not act on the controller.
void FolderTreeCommands::drop() {
    commands_.activate(ActiveSide::PC);
    with_.folder.showTree(
        FolderTree::whole(with_.state.PCPath, source_.drives(), source_.subfolders));
    view_.dropDown(true);
}

std::vector<FolderTree::Id> FolderTreeCommands::open(FolderTree::Id id) {
    auto& tree = with_.folder.tree();
    if (!tree.has(id))
        return {};
    tree.read(id, source_.subfolders);
    return tree.node(id).children;
}

const FolderTree& FolderTreeCommands::tree() const {
    return with_.folder.tree();
}

void FolderTreeCommands::choose(FolderTree::Id id) {
    if (!tree().has(id))
        return;
    const FolderTreeNode node = tree().node(id);
    if (!with_.folder.enter(node.path, FolderTree::nodeOnly(node))) {
        with_.talk.tell(with_.messages.getMessage(message::folderNotOpened) + "\n[" +
                            shownText(node.path) + "]",
                        BoxIcon::Exclamation);
        return;
    }
    commands_.updateStates();
    with_.window.list(ActiveSide::PC).focus();
}

} // namespace vantrel
