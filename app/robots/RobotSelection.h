#pragma once

#include "app/commands/MainServices.h"

namespace vantrel {

class MainCommands;
class MessageBoxes;
class RobotBox;

/// The choice of a robot in `cmbRbtName`.
class RobotSelection {
  public:
    RobotSelection(const MainServices& services, MainCommands& commands, RobotBox& box,
                   MessageBoxes& boxes)
        : with_(services), commands_(commands), box_(box), boxes_(boxes) {}

    /// A choice that the operator has committed, not one passed by with the arrow keys: it reads
    /// the robot's directory. During the start and while an operation runs it is taken back.
    void choose(int index);

  private:
    bool isRobot(int index) const;
    bool isNewChoice(int index) const;
    void followFolder();
    void refreshController();

    MainServices with_;
    MainCommands& commands_;
    RobotBox& box_;
    MessageBoxes& boxes_;
};

} // namespace vantrel
