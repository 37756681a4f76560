#pragma once

#include "app/CommandLine.h"
#include "base/Result.h"

#include <string>

namespace vantrel {

class LanguageChoice;
class MessageBoxes;
class MessageTable;
class Panes;
class RobotBox;
class RobotRegistry;
class SettingsFile;
class Snappy;
class TransferTable;
struct ApplicationState;

/// What the start routine needs of the windows.
class StartWindows {
  public:
    virtual ~StartWindows() = default;
    virtual void setHelpFile(const std::string& path) = 0;
    /// `frmLanguage`, modal; leaves `LangCancelled` in the state.
    virtual void showLanguageDialog() = 0;
    /// `FrmMessage`, modeless, painted before the call returns.
    virtual void showStartMessage() = 0;
    /// Does nothing when the operator has closed it already.
    virtual void unloadStartMessage() = 0;
    /// `frmVers`: loaded hidden, later made visible without blocking.
    virtual void loadVersionWindow() = 0;
    virtual void showVersionWindow() = 0;
    /// Builds the main window hidden, both filter boxes filled and entry 0 chosen.
    virtual void buildMainWindow() = 0;
    virtual void showMainWindow() = 0;
    virtual void focusPCList() = 0;
    /// The main window's own start routine. What it has done stays when it throws.
    virtual void startMainWindow() = 0;
    /// Box and panes are there once the main window has been built.
    virtual RobotBox& robotBox() = 0;
    virtual Panes& panes() = 0;
    /// Called once, before any of the windows is built.
    virtual Snappy& createSession() = 0;
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
    Outcome enterProgramFolder();
    void setHelpFile();
    bool chooseLanguage();
    void loadSettings();
    void makeFolderAbsolute();
    void offerControllerDirectory();
    void openMainWindow();
    void startMainWindow();
    StartResult trap(const std::string& reason);
    void tellStartFailed(const std::string& reason);

    StartServices with_;
    Snappy* session_ = nullptr;
};

} // namespace vantrel
