#include "ui/PaneDrag.h"

#include "ui/OperationGuard.h"
#include "ui/dialogs/DialogBasics.h"
#include "ui/look/WxText.h"

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
        : drag_(drag), side_(side), data_(new wxDataObjectComposite), files_(new wxFileDataObject) {
        // The data of a drag that began here are never asked for.
        data_->Add(files_, true);
        data_->Add(new Payload);
        SetDataObject(data_);
    }

    wxDragResult OnDragOver(wxCoord, wxCoord, wxDragResult) override {
        return drag_.accepts(side_) || drag_.acceptsFiles(side_) ? wxDragCopy : wxDragNone;
    }
    wxDragResult OnEnter(wxCoord x, wxCoord y, wxDragResult wished) override {
        return OnDragOver(x, y, wished);
    }
    wxDragResult OnData(wxCoord, wxCoord, wxDragResult) override {
        const bool isTaken = drag_.accepts(side_) ? drag_.drop(side_) : dropFiles();
        return isTaken ? wxDragCopy : wxDragNone;
    }

  private:
    bool dropFiles() {
        // Another instance's controller pane offers no files, and what came last stays in the
        // object.
        if (!drag_.acceptsFiles(side_) || !GetData() ||
            data_->GetReceivedFormat() != wxDataFormat(wxDF_FILENAME))
            return false;
        std::vector<std::string> paths;
        for (const wxString& path : files_->GetFilenames())
            paths.push_back(fromWx(path));
        return drag_.dropFiles(side_, paths);
    }

    PaneDrag& drag_;
    ActiveSide side_;
    wxDataObjectComposite* data_; ///< owned by the target
    wxFileDataObject* files_;     ///< owned by the composite
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
        wxDataObjectComposite data;
        data.Add(new Payload, true);
        if (source == ActiveSide::PC && selectedPaths) {
            auto* const files = new wxFileDataObject;
            for (const std::string& path : selectedPaths())
                files->AddFile(toWx(path));
            data.Add(files);
        }
        wxDropSource dragged(data, &pane(source));
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

/// Some systems let a drop through to a window whose dialog waits for an answer, which was asked
/// about what the window shows.
bool PaneDrag::acceptsFiles(ActiveSide target) const {
    return !source_ && target == ActiveSide::PC && !guard_.isLocked() && !isDialogOpen();
}

bool PaneDrag::dropFiles(ActiveSide target, const std::vector<std::string>& paths) {
    if (!acceptsFiles(target) || paths.empty())
        return false;
    pane(target).CallAfter([this, paths] {
        if (onFilesDropped && !guard_.isLocked())
            onFilesDropped(paths);
    });
    return true;
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
