#pragma once

#include "base/ApplicationState.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

class wxWindow;

namespace vantrel {

class OperationGuard;

/// Dragging the selection of one pane onto the other, and files between the PC pane and other
/// programs. The controller's pane takes only what was dragged there from the PC pane of this
/// window, so that nothing from outside, this program's second instance included, goes straight to
/// a controller.
class PaneDrag {
  public:
    /// The panes are windows of their own whose children come and go; they outlive this object.
    PaneDrag(wxWindow& pcPane, wxWindow& controllerPane, const OperationGuard& guard);

    /// Asks whether a drop of this pane's selection on the other one would do something.
    std::function<bool(ActiveSide source)> canDrop;
    /// Called after the drop was answered, with the pane whose selection was dropped on the other.
    std::function<void(ActiveSide source)> onDropped;
    /// The files that another program gets when the selection of the PC pane is dropped there.
    std::function<std::vector<std::string>()> selectedPaths;
    /// Called after the drop was answered, with files of another program for the PC pane.
    std::function<void(const std::vector<std::string>& paths)> onFilesDropped;

    /// Lets the operator drag; returns when the mouse button is released.
    void begin(ActiveSide source);
    /// What a drag consists of: `drag` runs while the source is remembered.
    void whileDragging(ActiveSide source, const std::function<void()>& drag);

    bool isDragging() const { return source_.has_value(); }
    /// Whether a drop on this pane would be taken.
    bool accepts(ActiveSide target) const;
    /// A drop on this pane; false when it is not taken.
    bool drop(ActiveSide target);
    /// Whether files of another program would be taken by this pane.
    bool acceptsFiles(ActiveSide target) const;
    /// Such files were dropped on it; false when they are not taken.
    bool dropFiles(ActiveSide target, const std::vector<std::string>& paths);

  private:
    wxWindow& pane(ActiveSide side) const;

    wxWindow& pcPane_;
    wxWindow& controllerPane_;
    const OperationGuard& guard_;
    std::optional<ActiveSide> source_; ///< set while a drag is under way
};

} // namespace vantrel
