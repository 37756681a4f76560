#include "ui/MainWindowLook.h"

#include "app/CommandStates.h"
#include "app/ModeCommands.h"
#include "ui/IconSet.h"
#include "ui/KeyedToolBar.h"
#include "ui/MainWindowControls.h"

#include <array>
#include <cstdint>
#include <string_view>

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

void showButton(KeyedToolBar& bar, std::string_view key, const CommandState& state) {
    bar.setEnabled(key, state.enabled);
    bar.setPressed(key, state.checked);
}

void showButtons(const MainWindowControls& controls, const CommandStates& states) {
    for (const auto& button : states.tlbMain)
        showButton(*controls.tlbMain, button.key, button.state);
    for (const auto& button : states.tlbPC)
        showButton(*controls.tlbPC, button.key, button.state);
    showButton(*controls.tlbPCButton, states.tlbPCButton.key, states.tlbPCButton.state);
    showButton(*controls.tlbCtrlButton, states.tlbCtrlButton.key, states.tlbCtrlButton.state);
    static constexpr std::array<std::string_view, 4> fileKeys{"FileCopy", "FileMove", "FileDelete",
                                                              "AllSelect"};
    for (std::size_t index = 0; index < fileKeys.size(); ++index)
        showButton(*controls.tlbFile, fileKeys.at(index), states.tlbFile.at(index));
}

} // namespace

void showCommandStates(const MainWindowControls& controls, const CommandStates& states) {
    showButtons(controls, states);
    for (wxWindow* part :
         {static_cast<wxWindow*>(controls.tlbMain), static_cast<wxWindow*>(controls.fraPC.panel),
          static_cast<wxWindow*>(controls.fraCtrl.panel),
          static_cast<wxWindow*>(controls.fraFile.panel),
          static_cast<wxWindow*>(controls.cmbRbtName)})
        part->Enable(states.unlocked);
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
