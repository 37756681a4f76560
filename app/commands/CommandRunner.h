#pragma once

#include "app/commands/Commands.h"

#include <span>
#include <string_view>

namespace vantrel {

class HelpCommands;
class ListTransferCommands;
class MainCommands;
class PCFileCommands;

/// The windows that commands open.
class CommandWindows {
  public:
    virtual ~CommandWindows() = default;
    virtual void openSettings() = 0;
    virtual void changeLanguage() = 0;
    virtual void openVersionWindow() = 0;
    /// What the last command came to.
    virtual void openResult() = 0;
    /// Of the controller that operations reach now.
    virtual void testConnection() = 0;
    /// Of the robot in force.
    virtual void editRobotMark() = 0;
};

/// Who does the work of the commands in the table; everything is borrowed.
struct CommandTargets {
    MainCommands& main;
    PCFileCommands& files;
    ListTransferCommands& lists;
    const HelpCommands& help;
    CommandWindows& windows;
};

/// Runs the commands of a table for entries, buttons and keys.
class CommandRunner {
  public:
    /// Both outlive the runner.
    CommandRunner(std::span<const CommandRow> table, const CommandTargets& targets)
        : table_(table), to_(targets) {}

    /// An entry that was chosen or a button that was pressed. A button of the controller pane makes
    /// that pane the active one first.
    void run(const CommandRow& command, CommandPlace place) const;
    /// A key pressed in a pane's list, which becomes the active one, by its character code; false
    /// when the list itself handles it.
    bool listKey(ActiveSide side, int code, bool withControl) const;
    /// The command of a key as "F5", of several the one that is offered now, or null.
    const CommandRow* commandOf(std::string_view key) const;
    /// Runs a command if it is offered now; false when it is not.
    bool runIfOffered(const CommandRow& command) const;

  private:
    bool isOffered(const CommandRow& command) const;

    std::span<const CommandRow> table_;
    CommandTargets to_;
};

} // namespace vantrel
