#include "app/MainWindowStart.h"

#include "app/MainCommands.h"
#include "app/MainWindowView.h"
#include "app/SerialLabel.h"
#include "files/Panes.h"

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
    commands.openPCFolder(state.PCPath);
    showViews(with, commands);
    commands.updateStates();
}

} // namespace vantrel
