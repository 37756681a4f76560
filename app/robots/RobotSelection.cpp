#include "app/robots/RobotSelection.h"

#include "app/commands/MainCommands.h"
#include "app/commands/MainServices.h"
#include "app/folders/PCFolder.h"
#include "app/robots/Machine.h"
#include "app/robots/RobotFile.h"
#include "app/robots/RobotRegistry.h"
#include "base/ApplicationState.h"
#include "base/PathRules.h"
#include "files/RobotMark.h"
#include "lang/MessageBoxes.h"
#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "link/ShownText.h"

#include <limits>
#include <utility>

namespace vantrel {

void RobotSelection::choose(int index) {
    if (with_.state.Busy || !with_.state.StartupDone)
        return box_.select(with_.state.CurrentRobotIndex);
    if (!isRobot(index))
        return;
    const Machine before = machineInForce(with_.state);
    const bool isNew = isNewChoice(index);
    with_.state.CurrentRobot = with_.state.RobotList[static_cast<std::size_t>(index)];
    passSessionParameters(with_.state, with_.session);
    commands_.machineMayHaveChanged(before);
    if (!isNew)
        return;
    with_.state.CurrentRobotIndex = static_cast<std::int16_t>(index);
    // Whatever is told of its folder, no mark of another robot stands beside its name.
    with_.view.showRobotMark(robotMark(with_.messages, with_.state.CurrentRobot));
    if (with_.state.SyncroRobotDir == 1)
        followFolder();
    commands_.showRobot();
    commands_.updateStates();
    refreshController();
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
    if (!with_.folder.enter(robot.Path, FolderTree::driveAndFolder(robot.Path)))
        boxes_.tell(bracketed(robot.Name) +
                        with_.messages.getMessage(message::robotFolderNotListed) + "\n" +
                        shownText(robot.Path),
                    BoxIcon::Exclamation);
}

void RobotSelection::refreshController() {
    const ActiveSide before = std::exchange(with_.state.Active, ActiveSide::Controller);
    commands_.refreshActivePane();
    with_.state.Active = before;
    commands_.updateStates();
}

} // namespace vantrel
