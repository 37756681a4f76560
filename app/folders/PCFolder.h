#pragma once

#include "app/folders/FolderHistory.h"
#include "files/FolderTree.h"

#include <string>

namespace vantrel {

class FolderTreeView;
class MainWindowView;
class OperatorTalk;
class Panes;
struct ApplicationState;

/// The one place where the PC pane goes to another folder, whoever asked for it: list, status,
/// path display and folder tree always show the same one.
class PCFolder {
  public:
    PCFolder(ApplicationState& state, Panes& panes, OperatorTalk& talk, MainWindowView& window,
             FolderTreeView& treeView)
        : state_(state), panes_(panes), talk_(talk), window_(window), treeView_(treeView) {}

    /// Lists the folder and shows it everywhere, with `tree` in place of the old folder tree, which
    /// is hidden. False, untold and with everything as it was, when the folder cannot be opened.
    bool enter(const std::string& folder, FolderTree tree);

    const FolderHistory& history() const { return history_; }
    /// One folder back (-1) or forward (1) in the history, which has it. False as above; a folder
    /// that cannot be opened is no part of the history any more.
    bool step(int steps);

    /// What the folder tree shows now.
    FolderTree& tree() { return tree_; }
    /// Shows another tree for the same folder.
    void showTree(FolderTree tree);

  private:
    ApplicationState& state_;
    Panes& panes_;
    OperatorTalk& talk_;
    MainWindowView& window_;
    FolderTreeView& treeView_;
    FolderTree tree_;
    FolderHistory history_;
};

} // namespace vantrel
