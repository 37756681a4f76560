#pragma once

#include <string>
#include <vector>

namespace vantrel {

struct ApplicationState;
class LanguageChoice;
class MessageBoxes;
class MessageTable;
class Panes;
class RobotBox;
class RobotRegistry;
class SettingsFile;
class Snappy;
class TransferTable;

/// What the start routine needs of the windows.
class StartWindows {
  public:
    virtual ~StartWindows() = default;
    virtual void setHelpFile(const std::string& path) = 0;
    /// `frmLanguage`, modal; leaves `LangCancelled` in the state.
    virtual void showLanguageDialog() = 0;
    /// `FrmMessage`, modeless, painted before the call returns.
    virtual void showStartMessage() = 0;
    virtual void unloadStartMessage() = 0;
    /// `frmVers`: loaded hidden, later made visible without blocking.
    virtual void loadVersionWindow() = 0;
    virtual void showVersionWindow() = 0;
    /// Builds the main window hidden, both filter boxes filled and entry 0 chosen.
    virtual void buildMainWindow() = 0;
    virtual void showMainWindow() = 0;
    virtual void focusPCList() = 0;
    /// The main window's own start routine.
    virtual void startMainWindow() = 0;
    virtual RobotBox& robotBox() = 0;
    virtual Panes& panes() = 0;
    virtual Snappy& createSession() = 0;
};

} // namespace vantrel
