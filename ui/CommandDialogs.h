#pragma once

#include "app/commands/CommandRunner.h"
#include "app/lists/ListTransferCommands.h"
#include "ui/dialogs/frmMsgStat.h"
#include "ui/look/WindowHolder.h"

#include <optional>
#include <string>

class wxWindow;

namespace vantrel {

class Engine;
class MainProgram;
class MessageBoxes;
class MessageTable;
class Snappy;
class VersionWindow;
class frmZuroVant;
struct ApplicationState;
struct TestedController;

/// Opens `frmListFile` over a window, anew for each list, and the system's dialog for a new one;
/// everything is borrowed.
class ListFileDialogs : public ListFileWindow {
  public:
    ListFileDialogs(wxWindow& parent, ApplicationState& state, Snappy& session, MessageBoxes& boxes,
                    const MessageTable& messages)
        : parent_(parent), state_(state), session_(session), boxes_(boxes), messages_(messages) {}

    bool readList(std::string_view mode) override;
    std::optional<std::string> askNewList(const std::string& folder,
                                          const std::string& name) override;

  private:
    wxWindow& parent_;
    ApplicationState& state_;
    Snappy& session_;
    MessageBoxes& boxes_;
    const MessageTable& messages_;
};

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
    void openResult() override;
    void testConnection() override;
    void editRobotMark() override;
    /// Says in the main window that no robot moves, where that is so.
    void showSimulationNotice();

  private:
    void test(wxWindow& parent, const TestedController& controller);

    Engine& engine_;
    MainProgram& program_;
    frmZuroVant& window_;
    const WindowHolder<frmMsgStat>& progress_; ///< the window goes when the session quits
    VersionWindow& version_;
    bool resultOpen_ = false;
    bool testOpen_ = false;
    bool markOpen_ = false;
};

} // namespace vantrel
