#pragma once

#include "app/robots/RobotCheck.h"
#include "app/robots/RobotListDraft.h"
#include "app/settings/SerialDraft.h"
#include "base/Connection.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace vantrel {

class MessageTable;
struct ApplicationState;

/// The check boxes of the settings dialog.
enum class SettingOption { SyncroRobotDir, JBR, Headder, NoSave };

/// What the settings dialog hands over, whole.
struct SettingValues : SerialLine {
    std::int16_t SyncroRobotDir = 0;
    bool NoSave = false, JBR = false, Headder = false;
    std::int16_t Controler = 0;
    bool robotsChanged = false;
    std::vector<RobotRecord> RobotList;      ///< ends with the sentinel
    std::optional<std::size_t> CurrentRobot; ///< its place in the list
};

/// What the settings dialog knows and decides, without its window: a working copy of everything
/// that it edits. Only what the operator does is to be handed to it; filling fields is no edit.
class SettingDraft {
  public:
    /// A robot that is inserted has its files in `programFolder`, like one that the registry names
    /// without a folder.
    SettingDraft(const ApplicationState& state, const MessageTable& messages,
                 const std::string& programFolder);

    RobotListDraft& robots() { return robots_; }
    SerialDraft& serial() { return serial_; }

    /// The controller model; a stored value that is none shows none.
    int controler() const { return controler_; }
    void chooseControler(int index);
    bool isOn(SettingOption option) const { return options_[static_cast<std::size_t>(option)]; }
    void set(SettingOption option, bool on);

    /// Whether there is anything that apply would hand over: off until the operator edits.
    bool isEdited() const;

    /// What forbids to apply.
    std::optional<RobotFault> fault() const { return findRobotFault(robots_.entries()); }
    std::string textOf(const RobotFault& fault) const;

    /// The values to apply, when nothing forbids it; with them the edits count as done.
    SettingValues take();

  private:
    std::int16_t syncroRobotDir() const;

    const MessageTable& messages_;
    RobotListDraft robots_;
    SerialDraft serial_;
    int controler_;
    std::int16_t storedSyncro_;   ///< as last applied
    std::array<bool, 4> options_; ///< by `SettingOption`
    bool edited_ = false;
};

} // namespace vantrel
