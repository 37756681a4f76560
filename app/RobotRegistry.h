#pragma once

#include "base/Result.h"

#include <string>

namespace vantrel {

struct ApplicationState;
class MessageBoxes;
class MessageTable;

/// The robot box `cmbRbtName` as the registry fills it; filling raises no operator's event.
class RobotBox {
  public:
    virtual ~RobotBox() = default;
    virtual void clear() = 0;
    virtual void add(const std::string& name) = 0;
    virtual void select(int index) = 0;
};

/// The registered robots in "robot.ini" of the program's folder.
class RobotRegistry {
  public:
    RobotRegistry(ApplicationState& state, const MessageTable& messages, MessageBoxes& boxes,
                  std::string programFolder);

    /// Fills the robot list, selects the boot robot and fills the box.
    void read(RobotBox& box);
    /// Rewrites the file whole from the list and the current robot's name.
    Outcome write() const;

  private:
    ApplicationState& state_;
    const MessageTable& messages_;
    MessageBoxes& boxes_;
    std::string programFolder_;
};

} // namespace vantrel
