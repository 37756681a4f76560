#pragma once

#include "base/ApplicationState.h"

#include <functional>
#include <optional>

class wxWindow;

namespace vantrel {

class OperationGuard;

/// Dragging the selection of one pane onto the other. Only a drag that began in this window counts:
/// what is dragged in from another program, this one's second instance included, is never taken,
/// so that nothing from outside goes straight to a controller.
class PaneDrag {
  public:
    /// The panes are windows of their own whose children come and go; they outlive this object.
    PaneDrag(wxWindow& pcPane, wxWindow& controllerPane, const OperationGuard& guard);

    /// Asks whether a drop of this pane's selection on the other one would do something.
    std::function<bool(ActiveSide source)> canDrop;
    /// Called after the drop was answered, with the pane whose selection was dropped on the other.
    std::function<void(ActiveSide source)> onDropped;

    /// Lets the operator drag; returns when the mouse button is released.
    void begin(ActiveSide source);
    /// What a drag consists of: `drag` runs while the source is remembered.
    void whileDragging(ActiveSide source, const std::function<void()>& drag);

    /// Whether a drop on this pane would be taken.
    bool accepts(ActiveSide target) const;
    /// A drop on this pane; false when it is not taken.
    bool drop(ActiveSide target);

  private:
    wxWindow& pane(ActiveSide side) const;

    wxWindow& pcPane_;
    wxWindow& controllerPane_;
    const OperationGuard& guard_;
    std::optional<ActiveSide> source_; ///< set while a drag is under way
};

} // namespace vantrel
