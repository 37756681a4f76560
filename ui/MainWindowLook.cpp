#include "ui/MainWindowLook.h"

#include "app/Commands.h"
#include "app/ModeCommands.h"
#include "ui/CommandToolBar.h"
#include "ui/MainWindowControls.h"
#include "ui/look/IconSet.h"

#include <cstdint>

#include <wx/choice.h>
#include <wx/panel.h>
#include <wx/statbmp.h>
#include <wx/stattext.h>

namespace vantrel {

namespace {

const wxSize arrowIcon{32, 32};

wxColour colour(std::uint32_t redGreenBlue) {
    return {static_cast<unsigned char>(redGreenBlue >> 16),
            static_cast<unsigned char>(redGreenBlue >> 8),
            static_cast<unsigned char>(redGreenBlue)};
}

} // namespace

void showCommandStates(const MainWindowControls& controls, const CommandInput& input) {
    for (CommandToolBar* bar : controls.toolBars())
        bar->applyStates(input);
    for (wxWindow* part :
         {static_cast<wxWindow*>(controls.tlbMain), static_cast<wxWindow*>(controls.fraPC.panel),
          static_cast<wxWindow*>(controls.fraCtrl.panel),
          static_cast<wxWindow*>(controls.fraFile.panel),
          static_cast<wxWindow*>(controls.cmbRbtName)})
        part->Enable(!input.locked);
}

void showTransferMode(const MainWindowControls& controls, const ModeLook& look) {
    controls.lblSerial->Show(look.showsSerialLine);
    controls.lbl232CParam->Show(look.showsSerialLine);
    for (wxWindow* part :
         {static_cast<wxWindow*>(controls.lblRbtName), static_cast<wxWindow*>(controls.cmbRbtName),
          static_cast<wxWindow*>(controls.lblIPaddr), static_cast<wxWindow*>(controls.lblIPAddr2)})
        part->Show(look.showsRobot);
    for (auto* shape : {controls.pcHighlight, controls.controllerHighlight}) {
        shape->SetBackgroundColour(colour(look.shapeColour));
        shape->Refresh();
    }
}

void showActivePane(const MainWindowControls& controls, ActiveSide side) {
    const bool pc = side == ActiveSide::PC;
    controls.pctDirectArrow->SetBitmap(icon(pc ? "arrowToController" : "arrowToPC", arrowIcon));
    controls.pcHighlight->Show(pc);
    controls.controllerHighlight->Show(!pc);
}

} // namespace vantrel
