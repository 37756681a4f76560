#include "app/SettingDraft.h"

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
      serial_(state), controler_(state.Controler), options_{state.SyncroRobotDir == 1, state.JBR,
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

SettingValues SettingDraft::take() {
    SettingValues values{.Port = static_cast<std::int16_t>(serial_.port()),
                         .Baudrate = serial_.baudrate(),
                         .DataLen = serial_.dataLen(),
                         .Parity = serial_.parity(),
                         .StopBit = serial_.stopBit(),
                         .SyncroRobotDir = isOn(SettingOption::SyncroRobotDir) ? std::int16_t(1)
                                                                               : std::int16_t(0),
                         .NoSave = isOn(SettingOption::NoSave),
                         .JBR = isOn(SettingOption::JBR),
                         .Headder = isOn(SettingOption::Headder),
                         .Controler = static_cast<std::int16_t>(controler_),
                         .robotsChanged = robots_.isChanged(),
                         .RobotList = robots_.records(),
                         .CurrentRobot = robots_.current()};
    robots_.noteApplied();
    serial_.noteApplied();
    edited_ = false;
    return values;
}

} // namespace vantrel
