#include "app/MainWindowStart.h"

#include "app/MainCommands.h"
#include "app/MainWindowView.h"
#include "app/SerialLabel.h"
#include "base/PathRules.h"
#include "files/Panes.h"
#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "link/OperatorDialog.h"
#include "platform/Files.h"

namespace vantrel {

namespace {

void showViews(const MainServices& with, MainCommands& commands) {
    auto& state = with.state;
    for (const auto side : {ActiveSide::Controller, ActiveSide::PC}) {
        state.Active = side;
        commands.mnuDisp(side == ActiveSide::PC ? state.PCDispType : state.CtrlDispType);
        commands.mnuSort(with.panes.listing(side).SortType);
    }
    with.view.showActiveSide(ActiveSide::PC);
}

/// A stored folder that is gone opens the nearest one above it, with one message.
void openStoredFolder(const MainServices& with, MainCommands& commands) {
    const std::string stored = with.state.PCPath;
    std::string folder = stored;
    while (!isFolder(folder) && !PathRules().isRoot(folder))
        folder = PathRules().parent(folder);
    if (folder != stored)
        with.dialog.tell("[" + stored + "]" + with.messages.getMessage(message::folderGone),
                         BoxIcon::Exclamation);
    commands.openPCFolder(folder);
}

} // namespace

void startMainWindow(const MainServices& with, MainCommands& commands) {
    auto& state = with.state;
    with.view.applyFont();
    const auto serial = serialLabel(state);
    with.view.showSerialLine(serial.port, serial.format);
    commands.applyHispeedAvailability();
    with.view.applyCaptions();
    with.view.place(state.WindowPos);
    if (state.TransMode == TransferMode::HispeedLink)
        commands.mnuModeHiSpeed();
    else
        commands.mnuModeBsc();
    with.view.showAddress(state.CurrentRobot.IPaddr);
    openStoredFolder(with, commands);
    showViews(with, commands);
    commands.updateStates();
}

} // namespace vantrel
