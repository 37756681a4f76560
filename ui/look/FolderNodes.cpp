#include "ui/look/FolderNodes.h"

#include "link/ShownText.h"
#include "ui/look/IconSet.h"
#include "ui/look/SystemLook.h"
#include "ui/look/WxText.h"

#include <wx/treectrl.h>

namespace vantrel {

namespace {

class NodeData : public wxTreeItemData {
  public:
    explicit NodeData(FolderTree::Id node) : id(node) {}
    const FolderTree::Id id;
};

} // namespace

void addFolderNodes(wxTreeCtrl& control, const wxTreeItemId& parent, const FolderTree& tree,
                    const std::vector<FolderTree::Id>& nodes) {
    for (const auto id : nodes) {
        const auto& node = tree.node(id);
        const auto item = control.AppendItem(parent, toWx(shownText(node.text)),
                                             folderImage(node.image), -1, new NodeData(id));
        // Whether there is anything below is looked at when the operator opens the node.
        control.SetItemHasChildren(item, !node.childrenRead || !node.children.empty());
        addFolderNodes(control, item, tree, node.children);
        if (node.expanded && !node.children.empty())
            control.Expand(item);
        if (id == tree.selected())
            control.SelectItem(item);
    }
}

FolderTree::Id nodeOf(const wxTreeCtrl& control, const wxTreeItemId& item) {
    const auto* data = item.IsOk() ? dynamic_cast<NodeData*>(control.GetItemData(item)) : nullptr;
    return data ? data->id : FolderTree::none;
}

void showSelectedFolder(wxTreeCtrl& control) {
    const auto selected = control.GetSelection();
    if (!selected.IsOk())
        return;
    if (const auto last = control.GetLastChild(selected);
        last.IsOk() && control.IsExpanded(selected))
        control.EnsureVisible(last);
    scrollToLeftEdge(control);
    control.EnsureVisible(selected);
}

} // namespace vantrel
