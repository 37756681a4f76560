#include "ui/MainWindowCaptions.h"

#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "ui/CommandToolBar.h"
#include "ui/FileListControl.h"
#include "ui/FolderTreeDropDown.h"
#include "ui/MainWindowControls.h"
#include "ui/look/WxText.h"

#include <array>
#include <cstdint>
#include <utility>

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

} // namespace

void captionControls(const MainWindowControls& controls, const MessageTable& messages) {
    captionToolBars(controls, messages);
    captionLabels(controls, messages);
    captionColumns(controls, messages);
}

} // namespace vantrel
