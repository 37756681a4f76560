#pragma once

#include "console/ConsolePanes.h"
#include "console/ConsoleWorld.h"
#include "console/Report.h"
#include "console/Request.h"
#include "console/Tally.h"
#include "console/Targets.h"
#include "files/CommandResult.h"
#include "files/Panes.h"
#include "files/TransferServices.h"
#include "link/MachineUse.h"

#include <string>

namespace vantrel {

class Engine;
class Snappy;

/// What the commands work with; everything is borrowed and outlives them.
struct Desk {
    const Request& request;
    const ConsoleWorld& world;
    Report& report;
    Tally& tally;
    Engine& engine;
    Targets targets{}; ///< the machines that are meant
};

/// The exit code that says best why the session's last operation, which has failed, did so.
int causeOf(const Snappy& session);

/// A machine in force, with the panes and the transfers of one. From its first use on it is kept
/// from other programs as long as this lives.
class MachineDesk {
  public:
    MachineDesk(Desk& desk, const Target& target);
    MachineDesk(const MachineDesk&) = delete;
    MachineDesk& operator=(const MachineDesk&) = delete;

    /// How it is called in the output: the robot's name, or "COM1".
    std::string name() const;
    /// Reads the controller's directory into its pane; false, after a message, when that failed.
    bool readController();
    /// Lists the machine's PC folder into its pane; false, after a message, when that failed.
    /// Without `settles` nothing in the folder is touched.
    bool readFolder(bool settles);
    /// Why the session's last operation failed, in words.
    std::string reason() const;

  private:
    Desk& desk_;
    const MachineUse::Command command_;
    ConsolePanes window_;

  public:
    Panes panes;
    ResultLog results;
    const TransferServices services;
};

} // namespace vantrel
