#pragma once

#include "app/settings/SettingsFile.h"

#include <string>

namespace vantrel {

class MessageBoxes;
class MessageTable;
class RobotRegistry;
class Snappy;
struct ApplicationState;

/// What closing the program needs of the windows.
class ShutdownWindows {
  public:
    virtual ~ShutdownWindows() = default;
    /// The operator's actions are refused: an operation runs, or windows are being built or
    /// painted.
    virtual bool isLocked() const = 0;
    /// `FrmMessage`, `frmSetting`, `frmListFile` and `frmVers`. The progress and question dialogs
    /// are the session's, which lets go of them when it quits.
    virtual void unloadOtherWindows() = 0;
    virtual WindowPlacement placement() const = 0;
};

/// What closing works with; everything is borrowed and outlives it.
struct ShutdownServices {
    ApplicationState& state;
    const SettingsFile& settings;
    RobotRegistry& registry;
    Snappy& session;
    const MessageTable& messages;
    MessageBoxes& boxes;
    ShutdownWindows& windows;
};

/// The rules for closing the main window.
class Shutdown {
  public:
    explicit Shutdown(const ShutdownServices& services) : with_(services) {}

    /// True when the window may close: the operator agreed, everything is saved and the session has
    /// quit. While something runs the close is refused without a word; where edited robots cannot
    /// be saved the operator may stay, to mend what stands in the way. Once it has returned true it
    /// goes on to do so and does nothing more.
    bool close();
    /// The system ends the operator's session: the same without the first question. False while
    /// something runs, or when the operator stays; to be called again then.
    bool closeUnasked();

  private:
    bool isRefused() const;
    bool saveAndQuit();
    /// False when edited robots cannot be kept and the operator wants to go on with them.
    bool save() const;
    bool acceptsLoss(const std::string& reason) const;

    ShutdownServices with_;
    bool closed_ = false;
};

} // namespace vantrel
