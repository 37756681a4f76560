#include "app/settings/SettingDraft.h"

#include "base/ApplicationState.h"
#include "base/PathRules.h"
#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"

namespace vantrel {
namespace {

RobotRecord freshRobot(const MessageTable& messages, const std::string& programFolder) {
    RobotRecord robot;
    robot.Name = messages.getMessage(message::newRobot);
    robot.Path = PathRules().withoutTrailingSeparator(programFolder);
    return robot;
}

} // namespace

SettingDraft::SettingDraft(const ApplicationState& state, const MessageTable& messages,
                           const std::string& programFolder)
    : messages_(messages),
      robots_(state.RobotList, state.CurrentRobotIndex, freshRobot(messages, programFolder)),
      serial_(state), controler_(state.Controler),
      storedSyncro_(state.SyncroRobotDir), options_{state.SyncroRobotDir == 1, state.JBR,
                                                    state.Headder, state.NoSave} {}

void SettingDraft::chooseControler(int index) {
    edited_ = edited_ || index != controler_;
    controler_ = index;
}

void SettingDraft::set(SettingOption option, bool on) {
    bool& value = options_[static_cast<std::size_t>(option)];
    edited_ = edited_ || value != on;
    value = on;
}

bool SettingDraft::isEdited() const {
    return edited_ || robots_.isEdited() || serial_.isEdited();
}

std::string SettingDraft::textOf(const RobotFault& fault) const {
    return faultText(fault, robots_.entries(), messages_);
}

// A stored value that is neither stays until the box is changed: it means off, as 0 does.
std::int16_t SettingDraft::syncroRobotDir() const {
    const bool on = isOn(SettingOption::SyncroRobotDir);
    return on == (storedSyncro_ == 1) ? storedSyncro_ : std::int16_t(on);
}

SettingValues SettingDraft::take() {
    SettingValues values{serial_.line()};
    values.SyncroRobotDir = syncroRobotDir();
    values.NoSave = isOn(SettingOption::NoSave);
    values.JBR = isOn(SettingOption::JBR);
    values.Headder = isOn(SettingOption::Headder);
    values.Controler = static_cast<std::int16_t>(controler_);
    values.robotsChanged = robots_.isChanged();
    values.RobotList = robots_.records();
    values.CurrentRobot = robots_.current();
    storedSyncro_ = values.SyncroRobotDir;
    robots_.noteApplied();
    serial_.noteApplied();
    edited_ = false;
    return values;
}

} // namespace vantrel
