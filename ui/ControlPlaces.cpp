#include "ui/ControlPlaces.h"

#include "app/window/ScreenGeometry.h"
#include "app/window/WindowLayout.h"
#include "ui/CommandToolBar.h"
#include "ui/FileListControl.h"
#include "ui/FileViewer.h"
#include "ui/FolderTreeDropDown.h"
#include "ui/MainWindowControls.h"
#include "ui/PathDisplay.h"
#include "ui/QuickFilter.h"
#include "ui/ViewerSearch.h"
#include "ui/look/ColourSwatch.h"

#include <algorithm>
#include <cmath>

#include <wx/bmpbuttn.h>
#include <wx/choice.h>
#include <wx/display.h>
#include <wx/statbmp.h>
#include <wx/statbox.h>
#include <wx/stattext.h>

namespace vantrel {
namespace {

/// Of the width without its rounding, which may make it smaller by a part of a pixel; a row gives
/// its controls the height that they ask for.
double neededRoom(const wxStaticText& label, const wxString& text, const Rectangle& place,
                  int dpi) {
    const wxSize needed = label.GetTextExtent(text);
    return std::max(twipsFromPixels(needed.x, dpi) / place.width,
                    needed.y / double(pixelsFromTwips(place.height, dpi)));
}

double roomOnTheScreen(const wxWindow& window, int dpi) {
    const int index = wxDisplay::GetFromWindow(&window);
    const wxRect screen = wxDisplay(index == wxNOT_FOUND ? 0u : unsigned(index)).GetClientArea();
    return std::min(screen.width / double(pixelsFromTwips(minimumSize.width, dpi)),
                    screen.height / double(pixelsFromTwips(minimumSize.height, dpi)));
}

class Placer {
  public:
    explicit Placer(int dpi) : dpi_(dpi) {}

    /// Both edges are rounded, not the width, so that neighbours meet.
    wxRect pixels(const Rectangle& place) const {
        const int left = pixelsFromTwips(place.left, dpi_);
        const int top = pixelsFromTwips(place.top, dpi_);
        return {left, top, pixelsFromTwips(place.right(), dpi_) - left,
                pixelsFromTwips(place.top + place.height, dpi_) - top};
    }

    void exactly(wxWindow* control, const Rectangle& place) const {
        control->SetSize(pixels(place));
    }

    /// For a control whose height is the system's: centred in its row.
    void inRow(wxWindow* control, const Rectangle& place) const {
        auto row = pixels(place);
        // A control that has only just been shown may still ask for the height of its last font.
        const int height = std::max(control->GetBestSize().y, control->GetCharHeight());
        row.y += (row.height - height) / 2;
        row.height = height;
        control->SetSize(row);
    }

    /// As high as its neighbour, which is placed already.
    void beside(wxWindow* control, const Rectangle& place, const wxWindow& neighbour) const {
        const auto row = pixels(place);
        control->SetSize(row.x, neighbour.GetPosition().y, row.width, neighbour.GetSize().y);
    }

    /// Along the lower edge of a control that is placed already, which becomes smaller by it.
    void atFoot(wxWindow* line, wxWindow& of) const {
        if (!line->IsShown())
            return;
        wxRect rest = of.GetRect();
        const int height = line->GetBestSize().y;
        rest.height -= height + pixelsFromTwips(lineGap, dpi_);
        of.SetSize(rest);
        line->SetSize(rest.x, rest.GetBottom() + 1 + pixelsFromTwips(lineGap, dpi_), rest.width,
                      height);
        line->Layout();
    }

    void frame(const PaneFrame& frame, const Rectangle& place) const {
        exactly(frame.panel, place);
        frame.box->SetSize(frame.panel->GetClientSize());
    }

  private:
    static constexpr double lineGap = 45;
    int dpi_;
};

} // namespace

double captionRoom(const MainWindowControls& controls, int dpi) {
    const WindowLayout layout = windowLayout(designSize);
    const std::pair<const wxStaticText*, const Rectangle*> labels[] = {
        {controls.lblSerial, &layout.lblDisp[serialLabelIndex]},
        {controls.lblRbtName, &layout.lblRbtName},
        {controls.lblIPaddr, &layout.lblIPaddr},
        {controls.lblFolder, &layout.lblDisp[folderLabel]},
        {controls.lblPCFileType, &layout.lblDisp[pcTypeLabel]},
        {controls.lblCtrlFileType, &layout.lblDisp[controllerTypeLabel]},
        {controls.lblFile, &layout.lblDisp[viewerFileLabel]}};
    // The end of an address is what tells two robots apart.
    double room = neededRoom(*controls.lblIPAddr2, "255.255.255.255", layout.lblIPAddr2, dpi);
    for (const auto& [label, place] : labels)
        room = std::max(room, neededRoom(*label, label->GetLabelText(), *place, dpi));
    // In whole pixels per inch, which is what it is used in.
    const double most = std::floor(roomOnTheScreen(*controls.surface, dpi) * dpi) / dpi;
    return std::clamp(std::ceil(room * dpi) / dpi, 1.0, std::max(1.0, most));
}

RobotRoom robotRoom(const MainWindowControls& controls, int dpi) {
    const wxString mark = controls.lblRobotMark->GetLabelText();
    return {.box = twipsFromPixels(controls.cmbRbtName->GetBestSize().x, dpi),
            .mark = mark.empty()
                        ? 0
                        : twipsFromPixels(controls.lblRobotMark->GetTextExtent(mark).x, dpi)};
}

void placeControls(const MainWindowControls& controls, const WindowLayout& layout, int dpi) {
    const Placer place(dpi);
    place.inRow(controls.tlbMain, layout.tlbMain);
    place.inRow(controls.lblSerial, layout.lblDisp[serialLabelIndex]);
    place.exactly(controls.lbl232CParam, layout.lbl232CParam);
    place.inRow(controls.lblRbtName, layout.lblRbtName);
    place.inRow(controls.cmbRbtName, layout.cmbRbtName);
    place.inRow(controls.lblIPaddr, layout.lblIPaddr);
    place.inRow(controls.lblIPAddr2, layout.lblIPAddr2);
    place.exactly(controls.robotColour, layout.robotColour);
    place.inRow(controls.lblRobotMark, layout.lblRobotMark);

    place.frame(controls.fraPC, layout.fraPC);
    place.inRow(controls.tlbPCButton, layout.tlbPCButton);
    place.exactly(controls.Picture1, layout.Picture1);
    place.inRow(controls.lblFolder, layout.lblDisp[folderLabel]);
    place.inRow(controls.trvFolderName, layout.trvFolderName);
    place.beside(controls.Command1, layout.Command1, *controls.trvFolderName);
    place.inRow(controls.tlbPC, layout.tlbPC);
    place.exactly(controls.lsvPC, layout.lsvPC);
    place.atFoot(controls.pcQuickFilter, *controls.lsvPC);
    place.exactly(controls.trvFolderList, layout.trvFolderList);
    place.inRow(controls.lblPCFileType, layout.lblDisp[pcTypeLabel]);
    place.inRow(controls.cmbPCFileType, layout.cmbPCFileType);

    place.exactly(controls.pctDirectArrow, layout.pctDirectArrow);

    place.frame(controls.fraCtrl, layout.fraCtrl);
    place.inRow(controls.tlbCtrlButton, layout.tlbCtrlButton);
    place.inRow(controls.tlbFile, layout.tlbFile);
    place.exactly(controls.lsvCtrl, layout.lsvCtrl);
    place.atFoot(controls.ctrlQuickFilter, *controls.lsvCtrl);
    place.inRow(controls.lblCtrlFileType, layout.lblDisp[controllerTypeLabel]);
    place.inRow(controls.cmbCtrlFileType, layout.cmbCtrlFileType);

    place.frame(controls.fraFile, layout.fraFile);
    place.exactly(controls.rtxFileDisp, layout.rtxFileDisp);
    place.atFoot(controls.viewerSearch, *controls.rtxFileDisp);
    place.inRow(controls.lblFile, layout.lblDisp[viewerFileLabel]);
    place.inRow(controls.lblFileName, layout.lblFileName);

    place.exactly(controls.pcHighlight, layout.shapePC);
    place.exactly(controls.controllerHighlight, layout.shapeCtrl);
}

} // namespace vantrel
