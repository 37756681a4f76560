#include "app/start/MainWindowStart.h"

#include "app/commands/MainCommands.h"
#include "app/commands/MainServices.h"
#include "app/folders/PCFolder.h"
#include "app/settings/SerialDraft.h"
#include "base/PathRules.h"
#include "files/FolderTree.h"
#include "files/Panes.h"
#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "link/OperatorTalk.h"
#include "link/ShownText.h"

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

/// A stored folder that cannot be opened opens the nearest one above it that can, with one message.
void openStoredFolder(const MainServices& with) {
    const std::string stored = with.state.PCPath;
    std::string folder = stored;
    const auto open = [&with](const std::string& path) {
        return with.folder.enter(path, FolderTree::driveAndFolder(path));
    };
    bool isOpen = open(folder);
    for (auto above = PathRules().parent(folder); !isOpen && above != folder;
         above = PathRules().parent(folder)) {
        folder = above;
        isOpen = open(folder);
    }
    if (!isOpen) {
        with.view.showFolder(stored);
        with.panes.showCount(ActiveSide::PC);
    }
    if (!isOpen || folder != stored)
        with.talk.tell(bracketed(stored) + with.messages.getMessage(message::folderGone),
                       BoxIcon::Exclamation);
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
    commands.showRobot();
    // The view first, so that no row is shown in another one before.
    with.view.showView(ActiveSide::PC, state.PCDispType);
    openStoredFolder(with);
    showViews(with, commands);
    commands.updateStates();
}

} // namespace vantrel
