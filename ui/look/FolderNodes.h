#pragma once

#include "files/FolderTree.h"

#include <vector>

class wxTreeCtrl;
class wxTreeItemId;

namespace vantrel {

// A folder tree in the system's tree control.

/// Adds nodes and all that has been read below them; the tree's selected node is selected.
void addFolderNodes(wxTreeCtrl& control, const wxTreeItemId& parent, const FolderTree& tree,
                    const std::vector<FolderTree::Id>& nodes);
/// The node that an item stands for; none for the hidden root.
FolderTree::Id nodeOf(const wxTreeCtrl& control, const wxTreeItemId& item);
/// Scrolls to the selected node, with as much of what is below it as fits.
void showSelectedFolder(wxTreeCtrl& control);

} // namespace vantrel
