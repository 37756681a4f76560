#pragma once

#include "base/ApplicationState.h"
#include "base/Result.h"
#include "lang/Captions.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace vantrel {

class MainWindowView;
class MessageTable;
class OperatorDialog;
struct CommandStates;
class PaneWindow;
class Panes;
class Snappy;
class TransferCommands;

/// What the main window's commands work with; everything is borrowed and outlives them.
struct MainServices {
    ApplicationState& state;
    Snappy& session;
    Panes& panes;
    TransferCommands& transfers;
    const MessageTable& messages;
    OperatorDialog& dialog;
    PaneWindow& window;
    MainWindowView& view;
    std::function<Outcome(const std::string& path)> editTextFile; ///< the system's text editor
};

/// The commands of the main window, by their names in its menus. Each acts on the active pane and
/// ends by bringing menus and buttons in line.
class MainCommands {
  public:
    explicit MainCommands(const MainServices& services) : with_(services) {}

    /// Runs a menu entry; false when it is none of these commands.
    bool menu(MenuItem item);
    /// Runs a tool button by its key; another key does nothing.
    void tool(std::string_view key);
    /// A key pressed in a pane's list, which becomes the active one, by its character code; false
    /// when the list itself handles it.
    bool listKey(ActiveSide side, int key, bool control);

    /// 0 copy, 1 move, 2 delete, 3 select all.
    void mnuFile(int index);
    /// View 0 to 3 of the active pane.
    void mnuDisp(std::int16_t index);
    /// Sort type of the active pane; an index without a column sorts by name.
    void mnuSort(std::int16_t index);
    /// A press on a column header of the PC pane, by its column from 0: another column keeps the
    /// direction, the same one turns it. Only name, size and date order anything.
    void clickColumn(int column);
    void mnuModeBsc();
    void mnuModeHiSpeed();
    void mnuRefresh();
    /// The same, leaving the focus where it is.
    void refreshActivePane();
    /// An item that was double-clicked or opened with Enter: a folder of the PC pane is entered, a
    /// job-kind file opened in the text editor. The controller pane opens nothing.
    void openItem(ActiveSide side, std::size_t row);
    /// One folder up in the PC pane; a root stays.
    void upFolder();
    /// The selection of `source` was dropped onto the other pane: copied, where a copy is offered.
    void drop(ActiveSide source);
    void mnuEnd();

    /// Makes a pane the active one.
    void activate(ActiveSide side);
    /// Refills a pane after another entry of its filter box was chosen.
    void chooseFilter(ActiveSide side);
    /// Lists a folder in the PC pane; a failure is told and changes nothing.
    void openPCFolder(const std::string& folder);
    /// Leaves a mode that the controller model does not have, and shows what is available.
    void applyHispeedAvailability();
    /// Shows a mode that the session was told by name.
    void modeWasChanged();
    /// After a change of language: title and counts.
    void recaption();
    /// Brings menus and buttons in line with the state.
    void updateStates();

  private:
    void edit(const std::string& path);
    CommandStates currentStates() const;
    void sortAnew(ActiveSide side);
    void switchTo(TransferMode mode);
    void showMode();

    MainServices with_;
    TransferMode shownMode_ = TransferMode::Bsc;
};

} // namespace vantrel
