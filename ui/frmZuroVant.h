#pragma once

#include "app/commands/Commands.h"
#include "app/commands/MainServices.h"
#include "app/robots/RobotRegistry.h"
#include "app/viewer/ViewerCommands.h"
#include "files/PaneWindow.h"
#include "link/ProgressPanel.h"
#include "ui/MainMenus.h"
#include "ui/MainWindowControls.h"
#include "ui/PaneDrag.h"
#include "ui/StatusPanels.h"
#include "ui/WindowPlace.h"

#include <array>
#include <chrono>
#include <functional>
#include <span>
#include <string>

#include <wx/frame.h>
#include <wx/timer.h>

namespace vantrel {

class CommandRunner;
class MainCommands;
class MessageTable;
class OperationGuard;
class PCFileCommands;
struct WindowPlacement;

/// The main window. It shows what it is told, and hands every event to one command.
class frmZuroVant : public wxFrame,
                    public PaneWindow,
                    public MainWindowView,
                    public RobotBox,
                    public ViewerPane {
  public:
    /// The table of its commands outlives the window.
    frmZuroVant(ApplicationState& state, const MessageTable& messages, OperationGuard& guard,
                std::span<const CommandRow> table = commandTable());
    ~frmZuroVant() override;

    /// Hands events to the commands from now on; until then they do nothing. Called once.
    void connect(MainCommands& commands, PCFileCommands& files, const CommandRunner& runner);
    /// From now on what others change in the PC folder is shown while the window can be seen.
    void watchPCFolder();
    /// Called with the robot that the operator chose, by its place in the box.
    std::function<void(int index)> onRobotChosen;
    /// Asks whether the window may close; it closes when the answer is true.
    std::function<bool()> onClose;
    /// The same for a close that cannot be refused, as at the end of the operator's session. While
    /// an operation runs it is put off, since that still needs the window.
    std::function<bool()> onForcedClose;

    WindowPlacement placement() const;
    /// The notice in the third panel of the status bar; without one the result has its room.
    void showNotice(const std::string& text);
    const MainWindowControls& controls() const { return controls_; }
    const MainMenus& menus() const { return menus_; }
    PaneDrag& drag() { return drag_; }

    PaneList& list(ActiveSide side) override;
    int filterIndex(ActiveSide side) const override;
    void setFilterChoices(ActiveSide side, const std::vector<std::string>& choices) override;
    void setStatus(ActiveSide side, const std::string& text) override;
    void setResult(const std::string& text) override;
    void setBusyPointer(bool busy) override;
    void setLocked(bool locked) override;
    void yield() override;

    void applyFont() override;
    void applyCaptions() override;
    void place(const std::array<std::int32_t, 8>& windowPositions) override;
    void showStates(const CommandInput& input) override;
    void showMode(const ModeLook& look) override;
    void showActiveSide(ActiveSide side) override;
    void showSerialLine(const std::string& port, const std::string& format) override;
    void showAddress(const std::string& address) override;
    void showRobotMark(const PlaceMark& mark) override;
    void showFolder(const std::string& path) override;
    void showView(ActiveSide side, std::int16_t displayType) override;
    void selectAll(ActiveSide side) override;
    void openQuickFilter(ActiveSide side) override;
    void closeQuickFilter(ActiveSide side) override;
    void closeWindow() override;

    void showFile(const std::string& name, std::string_view text) override;
    void hideFile() override;

    void clear() override;
    void add(const std::string& name) override;
    void select(int index) override;

  private:
    FileListControl& pane(ActiveSide side) const;
    QuickFilter& quickFilter(ActiveSide side) const;
    wxChoice& filter(ActiveSide side) const;
    /// Pixels per inch that the window is laid out with.
    int dpi() const;
    int designDpi() const;
    /// Larger captions get a larger window, as far as the screen goes.
    void makeRoomForCaptions();
    void fitStatusBar();
    void setColumnWidths(const std::array<double, 3>& twips);
    void bindEvents();
    void close(wxCloseEvent& event);
    void bindPane(ActiveSide side, MainCommands& commands, const CommandRunner& runner);
    void exchangePanes(bool viewer);
    void keepFocusInActivePane();
    void lay();

    ApplicationState& state_;
    const MessageTable& messages_;
    std::span<const CommandRow> table_;
    OperationGuard& guard_;
    MainWindowControls controls_;
    StatusPanels panels_;
    MainMenus menus_;
    PaneDrag drag_;
    WindowPlace place_;
    std::function<void()> updateStates_ = [] {};
    std::function<void(bool closely)> lookForChanges_ = [](bool) {};
    wxTimer watch_{this};
    std::chrono::steady_clock::time_point nextLook_{}; ///< not before
    bool wasLeft_ = false; ///< for another program, since it was looked for changes closely
    int statusLine_;       ///< the height of a line that the status bar has been made for
    PlaceMark mark_;       ///< of the robot in force
    bool placed_ = false;
    double captionRoom_ = 1; ///< what the design's lengths are multiplied by
    bool closesWhenUnlocked_ = false;
};

} // namespace vantrel
