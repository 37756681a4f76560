#pragma once

#include "app/CommandRunner.h"
#include "ui/dialogs/frmMsgStat.h"
#include "ui/look/WindowHolder.h"

class wxWindow;

namespace vantrel {

class Engine;
class MainProgram;
class VersionWindow;
class frmZuroVant;

/// `frmLanguage`, modal; leaves `LangCancelled` in the state. The parent may be null.
void openLanguageDialog(wxWindow* parent, Engine& engine);

/// The dialogs of the option and help menus, opened over the main window.
class CommandDialogs : public CommandWindows {
  public:
    /// All of them outlive this.
    CommandDialogs(Engine& engine, MainProgram& program, frmZuroVant& window,
                   const WindowHolder<frmMsgStat>& progress, VersionWindow& version)
        : engine_(engine), program_(program), window_(window), progress_(progress),
          version_(version) {}

    void openSettings() override;
    void changeLanguage() override;
    void openVersionWindow() override;
    /// Says in the main window that no robot moves, where that is so.
    void showSimulationNotice();

  private:
    Engine& engine_;
    MainProgram& program_;
    frmZuroVant& window_;
    const WindowHolder<frmMsgStat>& progress_; ///< the window goes when the session quits
    VersionWindow& version_;
};

} // namespace vantrel
