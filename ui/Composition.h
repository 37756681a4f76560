#pragma once

#include "app/CommandRunner.h"
#include "app/FolderTreeCommands.h"
#include "app/HelpCommands.h"
#include "app/ListTransferCommands.h"
#include "app/MainCommands.h"
#include "app/PCFolder.h"
#include "app/RobotRegistry.h"
#include "app/RobotSelection.h"
#include "app/SettingCommands.h"
#include "app/SettingsFile.h"
#include "app/Shutdown.h"
#include "app/StartRoutine.h"
#include "base/ApplicationState.h"
#include "files/Panes.h"
#include "files/TransferCommands.h"
#include "files/TransferServices.h"
#include "files/TransferTable.h"
#include "lang/LanguageChoice.h"
#include "lang/LanguageFiles.h"
#include "lang/MessageTable.h"
#include "link/OperatorDialog.h"
#include "link/ProgressPanel.h"
#include "link/Snappy.h"
#include "link/ZurolinkBinding.h"
#include "link/ZurolinkGate.h"
#include "ui/ListFileDialogs.h"
#include "ui/OperationGuard.h"
#include "ui/ScreenPaint.h"
#include "ui/WxFilePrinter.h"
#include "ui/dialogs/FrmMessage.h"
#include "ui/dialogs/ModalWatch.h"
#include "ui/dialogs/WindowHolder.h"
#include "ui/dialogs/WxMessageBoxes.h"
#include "ui/dialogs/frmDumy.h"
#include "ui/dialogs/frmMsgStat.h"
#include "ui/dialogs/frmMsgYesNo.h"
#include "ui/dialogs/frmVers.h"

#include <memory>
#include <optional>
#include <span>
#include <string>

namespace vantrel {

class frmZuroVant;

/// The composition root: builds every object once, in the order in which they need each other, and
/// hands out references. It holds no rule.
class Composition : private StartWindows,
                    private ShutdownWindows,
                    private RobotSelectionWindow,
                    private CommandWindows {
  public:
    /// `executable` is absolute; `arguments` are those after the program's own name. `library`
    /// takes the place of the one in the program's folder, if it is given.
    Composition(std::string executable, std::span<const std::string> arguments,
                Zurolink* library = nullptr);
    ~Composition() override;
    Composition(const Composition&) = delete;
    Composition& operator=(const Composition&) = delete;

    /// Runs the start routine.
    StartResult start();

    /// The main window, or null before it is built and after it is gone.
    frmZuroVant* mainWindow() const { return window_.get(); }

  private:
    /// What exists only once the main window does.
    struct Commands {
        Panes panes;
        TransferServices transferServices;
        TransferCommands transfers;
        PCFolder folder;
        MainServices services;
        MainCommands main;
        FolderTreeCommands folderTree;
        RobotSelection robots;
        SettingCommands settings;
        ListFileDialogs listFiles;
        ListTransferCommands lists;
        HelpCommands help;
        Shutdown shutdown;
        CommandRunner runner;

        Commands(Composition& owner, frmZuroVant& window);
    };

    void setHelpFile(const std::string& path) override;
    void showLanguageDialog() override;
    void showStartMessage() override;
    void unloadStartMessage() override;
    void loadVersionWindow() override;
    void showVersionWindow() override;
    void buildMainWindow() override;
    void showMainWindow() override;
    void focusPCList() override;
    void startMainWindow() override;
    RobotBox& robotBox() override;
    Panes& panes() override;
    Snappy& createSession() override;

    bool isLocked() const override;
    void unloadOtherWindows() override;
    WindowPlacement placement() const override;

    void selectRobot(int index) override;
    void showAddress(const std::string& address) override;
    bool enterFolder(const std::string& folder) override;
    void refreshStates() override;
    void refreshActivePane() override;

    void openSettings() override;
    void changeLanguage() override;
    void openVersionWindow() override;

    void bringVersionWindowForward();
    void closeVersionWindowFor(wxDialog& dialog);
    void showSimulationNotice();
    void yield();
    void bringScreenUpToDate();
    void reportLibrary(const LibraryProblem& problem);

    std::string executable_;
    std::string programFolder_;
    CommandLine commandLine_;

    ApplicationState state_;
    OperationGuard guard_;
    ScreenPaint screen_;
    MessageTable messages_;
    LanguageFiles languages_;
    WxMessageBoxes boxes_;
    WxFilePrinter printer_;
    ProgressPanel progress_;
    QuestionDialogs questions_;
    OperatorDialog dialog_;
    LanguageChoice languageChoice_;
    SettingsFile settings_;
    RobotRegistry registry_;
    TransferTable table_;
    ZurolinkBinding library_;
    ZurolinkGate gate_;
    std::unique_ptr<Snappy> session_;

    WindowHolder<frmMsgStat> progressWindow_;
    WindowHolder<frmDumy> dummyWindow_;
    WindowHolder<FrmMessage> startMessage_;
    WindowHolder<frmVers> versionWindow_;
    ModalWatch modalWatch_{[this](wxDialog& dialog) { closeVersionWindowFor(dialog); }};
    WindowHolder<frmZuroVant> window_;
    std::unique_ptr<Commands> commands_;
    std::string helpFile_;
};

} // namespace vantrel
