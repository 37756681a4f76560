#include "app/settings/SettingCommands.h"

#include "app/commands/MainCommands.h"
#include "app/commands/MainServices.h"
#include "app/robots/Machine.h"
#include "app/robots/RobotRegistry.h"
#include "app/settings/SerialDraft.h"
#include "app/settings/SettingDraft.h"
#include "base/ApplicationState.h"
#include "files/Panes.h"

#include <utility>

namespace vantrel {

// The values are taken at once: filling a pane lets events run, and an edit made meanwhile belongs
// to the next apply.
void SettingCommands::apply(SettingDraft& draft) {
    const Machine before = machineInForce(with_.state);
    SettingValues values = draft.take();
    takeOptions(values);
    const auto model = std::exchange(with_.state.Controler, values.Controler);
    if (with_.state.Controler != model)
        rebuildPanes();
    takeRobots(std::move(values));
    passSessionParameters(with_.state, with_.session);
    with_.main.machineMayHaveChanged(before);
}

void SettingCommands::takeOptions(const SettingValues& values) {
    auto& state = with_.state;
    static_cast<SerialLine&>(state) = values;
    state.SyncroRobotDir = values.SyncroRobotDir;
    state.NoSave = values.NoSave;
    state.JBR = values.JBR;
    state.Headder = values.Headder;
}

void SettingCommands::rebuildPanes() {
    with_.panes.fillFilterChoices();
    for (const ActiveSide side : {ActiveSide::PC, ActiveSide::Controller})
        with_.panes.fill(side);
}

// A list that was not edited is left alone: the current robot may be none of it, after a registry
// that could not be read.
void SettingCommands::takeRobots(SettingValues&& values) {
    if (!values.robotsChanged)
        return;
    auto& state = with_.state;
    state.RobotList = std::move(values.RobotList);
    const std::size_t current = values.CurrentRobot.value_or(0);
    state.CurrentRobotIndex = static_cast<std::int16_t>(current);
    state.CurrentRobot = values.CurrentRobot ? state.RobotList[current] : RobotRecord();
    with_.registry.noteEdit();
    with_.registry.fillBox(with_.box);
    with_.main.showRobot();
}

void SettingCommands::takeMark(const RobotRecord& marked) {
    auto& state = with_.state;
    const auto place = currentRobotPlace(state);
    if (!place)
        return;
    RobotRecord& robot = state.RobotList[*place];
    if (robot.Colour == marked.Colour && robot.Label == marked.Label)
        return;
    for (RobotRecord* const record : {&robot, &state.CurrentRobot}) {
        record->Colour = marked.Colour;
        record->Label = marked.Label;
    }
    with_.registry.noteEdit();
    with_.main.showRobot();
}

void SettingCommands::showSettings() {
    recaption();
    with_.main.applyHispeedAvailability();
}

void SettingCommands::recaption() {
    const auto serial = serialLabel(with_.state);
    with_.view.showSerialLine(serial.port, serial.format);
    with_.view.applyCaptions();
    with_.main.recaption();
}

} // namespace vantrel
