#pragma once

#include "app/SettingsFile.h"

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
    /// An operation runs: `tlbMain` is disabled.
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
    /// quit. While something runs the close is refused without a word. Once it has returned true it
    /// goes on to do so and does nothing more.
    bool close();
    /// The system ends the operator's session: the same without the question. False while something
    /// runs; to be called again then.
    bool closeUnasked();

  private:
    bool isRefused() const;
    bool saveAndQuit();
    void save() const;

    ShutdownServices with_;
    bool closed_ = false;
};

} // namespace vantrel
