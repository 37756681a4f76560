#pragma once

#include "app/start/CommandLine.h"
#include "base/Result.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace vantrel {

class LanguageChoice;
class MessageBoxes;
class MessageTable;
class PaneWindow;
class Panes;
class RobotBox;
class RobotRegistry;
class SettingsFile;
class Snappy;
class TransferTable;
struct ApplicationState;
struct UndeliveredFile;

/// The main window once it is built, as the start routine needs it.
struct StartedWindow {
    Panes& panes;
    RobotBox& robots;
    PaneWindow& window;
    /// Its own start routine. What that has done stays when it throws.
    std::function<void()> start;
};

/// What the start routine needs of the windows.
class StartWindows {
  public:
    virtual ~StartWindows() = default;
    /// `frmLanguage`, modal; leaves `LangCancelled` in the state.
    virtual void showLanguageDialog() = 0;
    /// `FrmMessage`, modeless, painted before the call returns.
    virtual void showStartMessage() = 0;
    /// Does nothing when the operator has closed it already.
    virtual void unloadStartMessage() = 0;
    /// `frmVers`: loaded hidden, later made visible without blocking.
    virtual void loadVersionWindow() = 0;
    virtual void showVersionWindow() = 0;
    /// Builds the main window hidden; what it hands out is there for the rest of the program.
    virtual StartedWindow buildMainWindow() = 0;
    virtual void showMainWindow() = 0;
    /// Its start is over, be it by an error that the operator has read of.
    virtual void mainWindowStarted() = 0;
};

/// How the start routine ended. In all cases but `Running` the program ends with it.
enum class StartResult {
    ExitSwitch,
    NoLanguage,
    Automation,
    LanguageCancelled,
    Running,
    Trapped, ///< an unexpected error, which has been told; nothing may be saved
};

/// What the start routine works with; everything is borrowed and outlives it.
struct StartServices {
    ApplicationState& state;
    TransferTable& table;
    LanguageChoice& language;
    const MessageTable& messages;
    MessageBoxes& boxes;
    const SettingsFile& settings;
    RobotRegistry& registry;
    Snappy& session;
    StartWindows& windows;
    CommandLine commandLine;
    std::string executable;    ///< absolute
    std::string programFolder; ///< absolute
};

/// The start of the program, from the command line to the window that is ready to work with.
class StartRoutine {
  public:
    explicit StartRoutine(StartServices services);

    StartResult Main();

  private:
    StartResult run();
    void tellUndelivered(const std::vector<UndeliveredFile>& files);
    Outcome enterProgramFolder();
    void setHelpFile();
    bool chooseLanguage();
    void loadSettings();
    void offerControllerDirectory();
    void openMainWindow();
    void startOpenedWindow();
    StartResult trap(const std::string& reason);
    void tellStartFailed(const std::string& reason);

    StartServices with_;
    std::optional<StartedWindow> main_;
};

} // namespace vantrel
