#include "app/commands/MainCommands.h"

#include "app/commands/MainServices.h"
#include "app/commands/ModeCommands.h"
#include "app/folders/PCFolder.h"
#include "app/lists/SelectionList.h"
#include "app/robots/Machine.h"
#include "base/PathRules.h"
#include "files/CommandResult.h"
#include "files/ControllerPlace.h"
#include "files/PaneRefresh.h"
#include "files/PaneWindow.h"
#include "files/Panes.h"
#include "files/RobotMark.h"
#include "files/TransferCommands.h"
#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "lang/SystemReasons.h"
#include "link/OperatorTalk.h"
#include "link/ShownText.h"
#include "link/Snappy.h"

#include <algorithm>
#include <utility>

namespace vantrel {

namespace {

/// A kind is told by the last three characters; the editor wants a point before them.
bool hasExtension(const std::string& jobKindName) {
    constexpr std::size_t withPoint = 4;
    return jobKindName.size() >= withPoint && jobKindName[jobKindName.size() - withPoint] == '.';
}

} // namespace

void MainCommands::copy() {
    const bool controller = with_.state.Active == ActiveSide::Controller;
    controller ? with_.transfers.receiveCopy() : with_.transfers.sendCopy();
    updateStates();
}

void MainCommands::move() {
    const bool controller = with_.state.Active == ActiveSide::Controller;
    controller ? with_.transfers.receiveMove() : with_.transfers.sendMove();
    updateStates();
}

void MainCommands::remove() {
    const bool controller = with_.state.Active == ActiveSide::Controller;
    controller ? with_.transfers.deleteOnController() : with_.transfers.deleteOnPC();
    updateStates();
}

void MainCommands::selectAll() {
    with_.view.selectAll(with_.state.Active);
    updateStates();
}

void MainCommands::displayFile() {
    viewer_.showOrHide();
    if (with_.state.ViewerShown)
        activate(ActiveSide::PC);
    updateStates();
}

void MainCommands::print() {
    viewer_.print();
    updateStates();
}

void MainCommands::mnuDisp(std::int16_t index) {
    auto& state = with_.state;
    (state.Active == ActiveSide::PC ? state.PCDispType : state.CtrlDispType) = index;
    with_.view.showView(state.Active, index);
    updateStates();
}

void MainCommands::mnuSort(std::int16_t index) {
    with_.panes.listing(with_.state.Active).SortType = index;
    sortAnew(with_.state.Active);
}

void MainCommands::clickColumn(int column) {
    if (column < 0 || column >= sort_column::count)
        return;
    auto& listing = with_.panes.listing(ActiveSide::PC);
    if (listing.SortType != column)
        listing.SortType = static_cast<std::int16_t>(column);
    else
        listing.SortDir = listing.SortDir == 0 ? 1 : 0;
    sortAnew(ActiveSide::PC);
}

void MainCommands::sortAnew(ActiveSide side) {
    const auto selected = with_.panes.selectedNames(side);
    with_.panes.sort(side);
    with_.panes.selectNames(side, selected);
    updateStates();
}

void MainCommands::mnuModeBsc() {
    switchTo(TransferMode::Bsc);
}

void MainCommands::mnuModeHiSpeed() {
    switchTo(TransferMode::HispeedLink);
}

void MainCommands::switchTo(TransferMode mode) {
    if (switchMode(with_.state, mode))
        with_.panes.showEmptyController();
    showMode();
    updateStates();
}

void MainCommands::showMode() {
    shownMode_ = with_.state.TransMode;
    with_.view.showMode(modeLook(with_.state.TransMode, with_.messages));
}

void MainCommands::applyHispeedAvailability() {
    if (leaveUnavailableMode(with_.state)) {
        with_.panes.showEmptyController();
        showMode();
    }
    updateStates();
}

void MainCommands::modeWasChanged() {
    if (shownMode_ != with_.state.TransMode)
        with_.panes.showEmptyController();
    showMode();
    updateStates();
}

void MainCommands::machineMayHaveChanged(const Machine& before) {
    if (with_.state.StartupDone && machineInForce(with_.state) != before)
        with_.panes.showEmptyController();
}

void MainCommands::showRobot() {
    with_.view.showAddress(with_.state.CurrentRobot.IPaddr);
    with_.view.showRobotMark(robotMark(with_.messages, with_.state.CurrentRobot));
}

void MainCommands::recaption() {
    with_.view.showRobotMark(robotMark(with_.messages, with_.state.CurrentRobot));
    showMode();
    with_.panes.showCount(ActiveSide::PC);
    with_.panes.showCount(ActiveSide::Controller);
    if (with_.results.last())
        with_.window.setResult(resultLine(with_.messages, *with_.results.last()));
    updateStates();
}

void MainCommands::mnuRefresh() {
    refreshActivePane();
    // A pane that was locked has lost the focus.
    with_.window.list(with_.state.Active).focus();
}

void MainCommands::refreshActivePane() {
    with_.transfers.refresh(with_.state.Active);
    updateStates();
}

void MainCommands::openPCFolder(const std::string& folder, FolderTree tree) {
    if (!with_.folder.enter(folder, std::move(tree)))
        with_.talk.tell(folderNotRead, BoxIcon::Exclamation);
}

void MainCommands::openItem(ActiveSide side, std::size_t row) {
    const auto& rows = std::as_const(with_.panes).rows(side);
    if (side != ActiveSide::PC || row >= rows.size())
        return;
    const auto path = PathRules().join(with_.state.PCPath, rows.name(row));
    if (rows.kind(row) == FileKind::Folder) {
        openPCFolder(path, FolderTree::folderOnly(path));
        updateStates();
    } else if (rows.kind(row) == FileKind::JobFile && hasExtension(rows.name(row))) {
        edit(path);
    }
}

void MainCommands::edit(const std::string& path) {
    const auto started = with_.editTextFile(path);
    if (!started)
        with_.talk.tell(bracketed(path) + with_.messages.getMessage(message::editorNotStarted) +
                            "\n" + reasonInLanguage(with_.messages, started.reason()),
                        BoxIcon::Exclamation);
}

void MainCommands::upFolder() {
    workIn(ActiveSide::PC);
    const auto parent = PathRules().parent(with_.state.PCPath);
    if (parent != with_.state.PCPath)
        openPCFolder(parent, FolderTree::driveAndFolder(parent));
    updateStates();
}

void MainCommands::otherPane() {
    const bool isPC = with_.state.Active == ActiveSide::PC;
    workIn(isPC ? ActiveSide::Controller : ActiveSide::PC);
}

void MainCommands::quickFilter() {
    with_.view.openQuickFilter(with_.state.Active);
}

void MainCommands::filterNames(ActiveSide side, const std::string& text) {
    with_.panes.filterNames(side, text);
    updateStates();
}

void MainCommands::lineNumbers() {
    viewer_.showLineNumbers(!viewer_.lineNumbersShown());
    updateStates();
}

void MainCommands::viewOnController() {
    const auto row = with_.window.list(ActiveSide::Controller).selectedRow();
    if (!row || with_.state.ViewerShown)
        return;
    const std::string name = with_.panes.rows(ActiveSide::Controller).name(*row);
    if (auto text = with_.transfers.peek(name)) {
        viewer_.showText(name, controllerPlace(with_.state), std::move(*text));
        activate(ActiveSide::PC);
    }
    updateStates();
}

/// Folders and files of no transferable kind may be among what is dropped: the command names them.
bool MainCommands::canDrop(ActiveSide source) const {
    const auto& rows = with_.panes.rows(source);
    const auto selected = with_.window.list(source).selectedRows();
    return std::ranges::any_of(selected, [&](std::size_t row) {
        return source == ActiveSide::Controller || rows.kind(row) == FileKind::JobFile;
    });
}

void MainCommands::drop(ActiveSide source) {
    if (!canDrop(source))
        return;
    activate(source);
    if (with_.state.Active == source)
        copy();
}

void MainCommands::mnuEnd() {
    with_.view.closeWindow();
}

void MainCommands::activate(ActiveSide side) {
    const bool isCovered = side == ActiveSide::Controller && with_.state.ViewerShown;
    // A pane that is locked with the focus in it gives the focus up, on Windows to the other pane.
    if (with_.state.Busy || with_.state.Active == side || isCovered)
        return;
    with_.state.Active = side;
    with_.view.showActiveSide(side);
    updateStates();
}

void MainCommands::workIn(ActiveSide side) {
    activate(side);
    if (!with_.state.Busy && with_.state.Active == side)
        with_.window.list(side).focus();
}

void MainCommands::chooseFilter(ActiveSide side) {
    with_.panes.fill(side);
    updateStates();
}

void MainCommands::updateStates() {
    with_.panes.showSelection();
    with_.view.showStates(input());
}

std::optional<FileKind> MainCommands::selectedKind(ActiveSide side) const {
    const auto row = with_.window.list(side).selectedRow();
    const auto& rows = with_.panes.rows(side);
    if (!row || rows.name(*row).empty())
        return std::nullopt;
    return rows.kind(*row);
}

bool MainCommands::isJobSelected() const {
    const auto& rows = with_.panes.rows(with_.state.Active);
    const PaneList& list = with_.window.list(with_.state.Active);
    const auto isJob = [&rows](std::size_t row) { return isJobRow(rows, row); };
    // Mostly the one that was clicked is one: then the others need not be looked through.
    const auto meant = list.selectedRow();
    return meant && (isJob(*meant) || std::ranges::any_of(list.selectedRows(), isJob));
}

CommandInput MainCommands::input() const {
    const auto& state = with_.state;
    return {
        .active = state.Active,
        .pcDispType = state.PCDispType,
        .ctrlDispType = state.CtrlDispType,
        .pcSortType = state.PCListing.SortType,
        .ctrlSortType = state.CtrlListing.SortType,
        .mode = state.TransMode,
        .hispeedAvailable = hispeedAvailable(state),
        .locked = state.Busy,
        .viewerShown = state.ViewerShown,
        .lineNumbers = viewer_.lineNumbersShown(),
        .selectedKind = selectedKind(ActiveSide::PC),
        .controllerKind = selectedKind(ActiveSide::Controller),
        .jobSelected = isJobSelected(),
        .controllerFilter = with_.window.filterIndex(ActiveSide::Controller),
        .JBR = state.JBR,
        .hasResult = with_.results.last().has_value(),
        .hasRobot =
            state.TransMode == TransferMode::HispeedLink && currentRobotPlace(state).has_value(),
        .hasBack = with_.folder.history().hasBack(),
        .hasForward = with_.folder.history().hasForward(),
    };
}

} // namespace vantrel
