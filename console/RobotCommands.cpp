#include "console/RobotCommands.h"

#include "app/robots/RobotFile.h"
#include "app/start/Engine.h"
#include "console/ConsoleMessages.h"
#include "files/PaneRows.h"

namespace vantrel {
namespace {

bool isSerial(const Desk& desk) {
    return desk.targets.mode == TransferMode::Bsc;
}

void listRobot(Desk& desk, const RobotRecord& robot, bool isInForce) {
    desk.tally.add(ItemEnd::Done);
    desk.report.line({robot.Name, robot.IPaddr, robot.Path}, "robot",
                     {{"robot", robot.Name},
                      {"address", robot.IPaddr},
                      {"folder", robot.Path},
                      {"in_force", isInForce}});
}

} // namespace

void checkRobot(Desk& desk, const Target& target) {
    MachineDesk machine(desk, target);
    const bool isReached = !desk.world.isInterrupted() && machine.readController();
    const std::string reason =
        isReached || desk.world.isInterrupted() ? std::string() : machine.reason();
    const ItemEnd end = desk.world.isInterrupted() ? ItemEnd::NotTried : ItemEnd::Failed;
    desk.tally.add(isReached ? ItemEnd::Done : end, causeOf(desk.engine.session));
    const std::string address = isSerial(desk) ? std::string() : target.robot.IPaddr;
    const auto& messages = desk.engine.messages;
    desk.report.line({machine.name(), address, target.folder,
                      isReached ? messages.getMessage(message::consoleWorks) : reason},
                     "robot",
                     {{"robot", machine.name()},
                      {"address", address},
                      {"folder", target.folder},
                      {"reached", isReached},
                      {"reason", reason}});
}

void listFiles(Desk& desk, const Target& target) {
    MachineDesk machine(desk, target);
    const bool isCalledOff = desk.world.isInterrupted();
    if (isCalledOff || !machine.readController()) {
        const bool isTried = !desk.world.isInterrupted();
        const int cause = isCalledOff ? exit_code::nothingDone : causeOf(desk.engine.session);
        desk.tally.add(isTried ? ItemEnd::Failed : ItemEnd::NotTried, cause);
        return desk.report.object(
            "robot-failed",
            {{"robot", machine.name()}, {"reason", isTried ? machine.reason() : std::string()}});
    }
    desk.tally.add(ItemEnd::Done);
    const PaneRows& rows = std::as_const(machine.panes).rows(ActiveSide::Controller);
    for (std::size_t row = 0; row < rows.size(); ++row) {
        std::vector<std::string> cells{rows.name(row)};
        if (desk.targets.areSeveral)
            cells.insert(cells.begin(), machine.name());
        desk.report.line(cells, "entry", {{"robot", machine.name()}, {"name", rows.name(row)}});
    }
}

void listRobots(Desk& desk) {
    const ApplicationState& state = desk.engine.state;
    // A serial line has no robots of its own: those of the registry are what is asked for.
    if (isSerial(desk)) {
        for (std::size_t index = 0; index < robotCount(state.RobotList); ++index)
            listRobot(desk, state.RobotList[index],
                      static_cast<int>(index) == state.CurrentRobotIndex);
        return;
    }
    for (const Target& target : desk.targets.targets)
        listRobot(desk, target.robot, target.index == state.CurrentRobotIndex);
}

} // namespace vantrel
