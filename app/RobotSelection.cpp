#include "app/RobotSelection.h"

#include "app/RobotList.h"
#include "app/SessionParameters.h"
#include "base/ApplicationState.h"
#include "base/PathRules.h"
#include "files/Panes.h"
#include "lang/MessageBoxes.h"
#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "link/ShownText.h"

#include <limits>
#include <utility>

namespace vantrel {

void RobotSelection::choose(int index) {
    if (with_.window.isLocked() || !with_.state.StartupDone) {
        with_.window.selectRobot(with_.state.CurrentRobotIndex);
        return;
    }
    if (!isRobot(index))
        return;
    const Machine before = machineInForce(with_.state);
    const bool isNew = isNewChoice(index);
    with_.state.CurrentRobot = with_.state.RobotList[static_cast<std::size_t>(index)];
    passSessionParameters(with_.state, with_.session);
    machineMayHaveChanged(before);
    if (!isNew)
        return;
    with_.state.CurrentRobotIndex = static_cast<std::int16_t>(index);
    if (with_.state.SyncroRobotDir == 1)
        followFolder();
    with_.window.showAddress(with_.state.CurrentRobot.IPaddr);
    with_.window.refreshStates();
    refreshController();
}

void RobotSelection::machineMayHaveChanged(const Machine& before) {
    if (!with_.state.StartupDone || machineInForce(with_.state) == before)
        return;
    with_.panes.showEmptyController();
}

bool RobotSelection::isRobot(int index) const {
    return index >= 0 && index <= std::numeric_limits<std::int16_t>::max() &&
           static_cast<std::size_t>(index) < robotCount(with_.state.RobotList);
}

bool RobotSelection::isNewChoice(int index) const {
    const PathRules rules;
    const std::string& folder = with_.state.RobotList[static_cast<std::size_t>(index)].Path;
    return index != with_.state.CurrentRobotIndex ||
           rules.withoutTrailingSeparator(folder) !=
               rules.withoutTrailingSeparator(with_.state.PCPath);
}

void RobotSelection::followFolder() {
    const RobotRecord& robot = with_.state.CurrentRobot;
    if (!with_.window.enterFolder(robot.Path))
        with_.boxes.tell("[" + shownText(robot.Name) + "]" +
                             with_.messages.getMessage(message::robotFolderNotListed) + "\n" +
                             shownText(robot.Path),
                         BoxIcon::Exclamation);
}

void RobotSelection::refreshController() {
    const ActiveSide before = std::exchange(with_.state.Active, ActiveSide::Controller);
    with_.window.refreshActivePane();
    with_.state.Active = before;
    with_.window.refreshStates();
}

} // namespace vantrel
