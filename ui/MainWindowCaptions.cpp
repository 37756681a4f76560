#include "ui/MainWindowCaptions.h"

#include "app/WindowLayout.h"
#include "lang/Captions.h"
#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "ui/FileListControl.h"
#include "ui/FolderTreeDropDown.h"
#include "ui/KeyedToolBar.h"
#include "ui/MainWindowControls.h"
#include "ui/dialogs/WxText.h"

#include <array>
#include <tuple>

#include <wx/statbox.h>
#include <wx/stattext.h>

namespace vantrel {

namespace {

void captionToolBars(const MainWindowControls& controls, const MessageTable& messages) {
    for (const auto& tip : toolTips())
        for (auto* bar : {controls.tlbMain, controls.tlbPC, controls.tlbFile, controls.tlbPCButton,
                          controls.tlbCtrlButton})
            bar->setToolTip(tip.key, toWx(messages.getMessage(tip.message)));
}

void captionLabels(const MainWindowControls& controls, const MessageTable& messages) {
    const std::tuple<wxWindow*, const char*, int> labels[] = {
        {controls.fraPC.box, "fraPC", 0},
        {controls.fraCtrl.box, "fraCtrl", 0},
        {controls.lblFile, "lblDisp", viewerFileLabel},
        {controls.lblPCFileType, "lblDisp", pcTypeLabel},
        {controls.lblCtrlFileType, "lblDisp", controllerTypeLabel},
        {controls.lblSerial, "lblDisp", serialLabelIndex},
        {controls.lblFolder, "lblDisp", folderLabel},
        {controls.lblRbtName, "lblRbtName", 0},
        {controls.lblIPaddr, "lblIPaddr", 0}};
    for (const auto& [control, name, index] : labels)
        if (const auto message = controlMessage(name, index))
            control->SetLabel(toWx(messages.getMessage(*message)));
    // The viewer's frame has no caption of its own: it is named after the command that shows it.
    controls.fraFile.box->SetLabel(toWx(messages.getMessage(message::tipDisplayFile)));
    controls.trvFolderList->setCaption(toWx(messages.getMessage(message::tipFolderTree)));
}

void captionColumns(const MainWindowControls& controls, const MessageTable& messages) {
    std::array<wxString, FileListControl::columnCount> titles;
    std::size_t column = 0;
    for (const auto message : columnMessages())
        titles.at(column++) = toWx(messages.getMessage(message));
    controls.lsvPC->setColumnTitles(titles);
    controls.lsvCtrl->setColumnTitles(titles);
}

} // namespace

void captionControls(const MainWindowControls& controls, const MessageTable& messages) {
    captionToolBars(controls, messages);
    captionLabels(controls, messages);
    captionColumns(controls, messages);
}

} // namespace vantrel
