#pragma once

#include "app/Machine.h"
#include "base/RobotRecord.h"

#include <string>

namespace vantrel {

class MessageBoxes;
class MessageTable;
class Panes;
class Snappy;
struct ApplicationState;

/// What choosing a robot needs of the main window.
class RobotSelectionWindow {
  public:
    virtual ~RobotSelectionWindow() = default;
    /// An operation runs.
    virtual bool isLocked() const = 0;
    /// Chooses an entry of `cmbRbtName` without an event.
    virtual void selectRobot(int index) = 0;
    /// `lblIPAddr2`.
    virtual void showAddress(const std::string& address) = 0;
    /// Goes to another PC folder; false, untold and with everything as it was, when it cannot be
    /// opened.
    virtual bool enterFolder(const std::string& folder) = 0;
    virtual void refreshStates() = 0;
    /// The refresh command, on the active pane.
    virtual void refreshActivePane() = 0;
};

/// What choosing a robot works with; everything is borrowed and outlives it.
struct RobotSelectionServices {
    ApplicationState& state;
    Snappy& session;
    Panes& panes;
    const MessageTable& messages;
    MessageBoxes& boxes;
    RobotSelectionWindow& window;
};

/// The choice of a robot in `cmbRbtName`.
class RobotSelection {
  public:
    explicit RobotSelection(const RobotSelectionServices& services) : with_(services) {}

    /// A choice that the operator has committed, not one passed by with the arrow keys: it reads
    /// the robot's directory. During the start and while an operation runs it is taken back.
    void choose(int index);

    /// To be called when mode, port or address may have changed, with the machine that was in force
    /// before: empties the controller pane when it belongs to another machine. No connection is
    /// made.
    void machineMayHaveChanged(const Machine& before);

  private:
    bool isRobot(int index) const;
    bool isNewChoice(int index) const;
    void followFolder();
    void refreshController();

    RobotSelectionServices with_;
};

} // namespace vantrel
