#pragma once

#include "app/commands/CommandRunner.h"
#include "app/start/Engine.h"
#include "app/start/MainProgram.h"
#include "app/start/StartRoutine.h"
#include "base/ApplicationState.h"
#include "lang/MessageTable.h"
#include "ui/CommandDialogs.h"
#include "ui/OperationGuard.h"
#include "ui/ScreenPaint.h"
#include "ui/VersionWindow.h"
#include "ui/WxFilePrinter.h"
#include "ui/dialogs/FrmMessage.h"
#include "ui/dialogs/WxMessageBoxes.h"
#include "ui/dialogs/frmDumy.h"
#include "ui/dialogs/frmMsgStat.h"
#include "ui/dialogs/frmMsgYesNo.h"
#include "ui/dialogs/frmPrompt.h"
#include "ui/look/WindowHolder.h"

#include <memory>
#include <optional>
#include <span>
#include <string>

namespace vantrel {

class frmZuroVant;

/// The composition root: builds every object once, in the order in which they need each other, and
/// hands out references. It holds no rule.
class Composition : private StartWindows, private ShutdownWindows {
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
    struct Opened {
        ListFileDialogs listFiles;
        PromptDialogs prompts;
        MainProgram program;
        CommandDialogs dialogs;
        CommandRunner runner;

        Opened(Composition& owner, frmZuroVant& window);
    };

    void showLanguageDialog() override;
    void showStartMessage() override;
    void unloadStartMessage() override;
    void loadVersionWindow() override;
    void showVersionWindow() override;
    StartedWindow buildMainWindow() override;
    void showMainWindow() override;
    void mainWindowStarted() override;

    bool isLocked() const override;
    void unloadOtherWindows() override;
    WindowPlacement placement() const override;

    EngineGround ground(std::string executable, Zurolink* library);
    void connectMainWindow();
    void yield();
    void bringScreenUpToDate();

    CommandLine commandLine_;
    ApplicationState state_;
    MessageTable messages_;
    OperationGuard guard_{state_.Busy};
    std::optional<ActionsRefused> starting_; ///< until the start is over
    ScreenPaint screen_;
    WxMessageBoxes boxes_;
    WxFilePrinter printer_;
    QuestionDialogs questions_;
    Engine engine_;

    WindowHolder<frmMsgStat> progressWindow_;
    WindowHolder<frmDumy> dummyWindow_;
    WindowHolder<FrmMessage> startMessage_;
    VersionWindow versionWindow_;
    WindowHolder<frmZuroVant> window_;
    std::unique_ptr<Opened> opened_;
};

} // namespace vantrel
