#include "ui/PaneDrag.h"

#include "ui/OperationGuard.h"

#include <utility>

#include <wx/dataobj.h>
#include <wx/dnd.h>
#include <wx/window.h>

namespace vantrel {

namespace {

/// What is dragged says nothing: the panes know their selection.
class Payload : public wxCustomDataObject {
  public:
    Payload() : wxCustomDataObject(wxDataFormat("application/x-vantrel-selection")) {
        const char content = 1;
        SetData(sizeof content, &content);
    }
};

class PaneDropTarget : public wxDropTarget {
  public:
    PaneDropTarget(PaneDrag& drag, ActiveSide side)
        : wxDropTarget(new Payload), drag_(drag), side_(side) {}

    wxDragResult OnDragOver(wxCoord, wxCoord, wxDragResult) override {
        return drag_.accepts(side_) ? wxDragCopy : wxDragNone;
    }
    wxDragResult OnEnter(wxCoord x, wxCoord y, wxDragResult wished) override {
        return OnDragOver(x, y, wished);
    }
    wxDragResult OnData(wxCoord, wxCoord, wxDragResult) override {
        return drag_.drop(side_) ? wxDragCopy : wxDragNone;
    }

  private:
    PaneDrag& drag_;
    ActiveSide side_;
};

} // namespace

PaneDrag::PaneDrag(wxWindow& pcPane, wxWindow& controllerPane, const OperationGuard& guard)
    : pcPane_(pcPane), controllerPane_(controllerPane), guard_(guard) {
    for (const auto side : {ActiveSide::PC, ActiveSide::Controller})
        pane(side).SetDropTarget(new PaneDropTarget(*this, side));
}

wxWindow& PaneDrag::pane(ActiveSide side) const {
    return side == ActiveSide::PC ? pcPane_ : controllerPane_;
}

void PaneDrag::begin(ActiveSide source) {
    whileDragging(source, [&] {
        Payload payload;
        wxDropSource dragged(payload, &pane(source));
        dragged.DoDragDrop(wxDrag_CopyOnly);
    });
}

void PaneDrag::whileDragging(ActiveSide source, const std::function<void()>& drag) {
    if (source_ || guard_.isLocked())
        return;
    source_ = source;
    drag();
    source_.reset();
}

bool PaneDrag::accepts(ActiveSide target) const {
    return source_ && *source_ != target && !guard_.isLocked() && canDrop && canDrop(*source_);
}

bool PaneDrag::drop(ActiveSide target) {
    if (!accepts(target))
        return false;
    // The other side waits for the answer to its drag; the work is done when it has it.
    pane(target).CallAfter([this, source = *source_] {
        if (onDropped && !guard_.isLocked())
            onDropped(source);
    });
    return true;
}

} // namespace vantrel
