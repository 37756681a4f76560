#include "ui/MainWindowLook.h"

#include "app/commands/Commands.h"
#include "app/commands/ModeCommands.h"
#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "link/ProgressPanel.h"
#include "ui/CommandToolBar.h"
#include "ui/FileListControl.h"
#include "ui/FolderTreeDropDown.h"
#include "ui/MainWindowControls.h"
#include "ui/QuickFilter.h"
#include "ui/ViewerSearch.h"
#include "ui/look/ColourSwatch.h"
#include "ui/look/IconSet.h"
#include "ui/look/WxText.h"

#include <array>
#include <cstdint>
#include <utility>

#include <wx/choice.h>
#include <wx/panel.h>
#include <wx/statbmp.h>
#include <wx/statbox.h>
#include <wx/stattext.h>

namespace vantrel {
namespace {

void captionToolBars(const MainWindowControls& controls, const MessageTable& messages) {
    for (CommandToolBar* bar : controls.toolBars())
        bar->applyTips(messages);
}

void captionLabels(const MainWindowControls& controls, const MessageTable& messages) {
    const std::pair<wxWindow*, std::int32_t> captions[] = {
        {controls.fraPC.box, message::framePC},
        {controls.fraCtrl.box, message::frameController},
        // The viewer's frame has no caption of its own: it is named after the command that shows
        // it.
        {controls.fraFile.box, message::tipDisplayFile},
        {controls.lblFile, message::labelFile},
        {controls.lblPCFileType, message::labelFileType},
        {controls.lblCtrlFileType, message::labelFileType},
        {controls.lblSerial, message::labelSerialLine},
        {controls.lblFolder, message::labelFolder},
        {controls.lblRbtName, message::labelRobot},
        {controls.lblIPaddr, message::labelIPAddress}};
    for (const auto& [control, message] : captions)
        control->SetLabel(toWx(messages.getMessage(message)));
    controls.trvFolderList->setCaption(toWx(messages.getMessage(message::tipFolderTree)));
}

void captionColumns(const MainWindowControls& controls, const MessageTable& messages) {
    const std::array titles{toWx(messages.getMessage(message::columnName)),
                            toWx(messages.getMessage(message::columnSize)),
                            toWx(messages.getMessage(message::columnDate))};
    controls.lsvPC->setColumnTitles(titles);
    controls.lsvCtrl->setColumnTitles(titles);
}

void captionLists(const MainWindowControls& controls, const MessageTable& messages) {
    controls.lsvPC->setCaption(toWx(messages.getMessage(message::framePC)));
    controls.lsvCtrl->setCaption(toWx(messages.getMessage(message::frameController)));
    for (auto* const list : {controls.lsvPC, controls.lsvCtrl})
        list->setHints({toWx(messages.getMessage(message::paneNotRead)),
                        toWx(messages.getMessage(message::paneEmpty)),
                        toWx(messages.getMessage(message::paneFiltered)),
                        toWx(messages.getMessage(message::paneNothingFound))});
    for (auto* const line : {controls.pcQuickFilter, controls.ctrlQuickFilter})
        line->applyCaptions(messages);
}

const wxSize arrowIcon{32, 32};

} // namespace

void captionControls(const MainWindowControls& controls, const MessageTable& messages) {
    captionToolBars(controls, messages);
    captionLabels(controls, messages);
    captionColumns(controls, messages);
    captionLists(controls, messages);
    controls.viewerSearch->applyCaptions(messages);
}

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

void showMark(const MainWindowControls& controls, const PlaceMark& mark) {
    const bool showsRobot = controls.cmbRbtName->IsShown();
    const bool isMarked = !mark.text.empty();
    controls.lblIPaddr->Show(showsRobot && !isMarked);
    controls.lblRobotMark->Show(showsRobot && isMarked);
    controls.robotColour->Show(showsRobot && mark.colour);
    controls.lblRobotMark->SetLabelText(toWx(mark.text));
    controls.lblRobotMark->SetToolTip(toWx(mark.text));
    if (mark.colour)
        controls.robotColour->showColour(*mark.colour, mark.colourName);
}

void showTransferMode(const MainWindowControls& controls, const ModeLook& look) {
    controls.lblSerial->Show(look.showsSerialLine);
    controls.lbl232CParam->Show(look.showsSerialLine);
    for (wxWindow* part :
         {static_cast<wxWindow*>(controls.lblRbtName), static_cast<wxWindow*>(controls.cmbRbtName),
          static_cast<wxWindow*>(controls.lblIPaddr), static_cast<wxWindow*>(controls.lblIPAddr2)})
        part->Show(look.showsRobot);
    for (auto* shape : {controls.pcHighlight, controls.controllerHighlight}) {
        shape->SetBackgroundColour(colourOf(look.shapeColour));
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
