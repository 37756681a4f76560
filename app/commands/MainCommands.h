#pragma once

#include "app/commands/Commands.h"
#include "app/commands/MainServices.h"
#include "app/viewer/ViewerCommands.h"
#include "base/ApplicationState.h"
#include "files/FileKinds.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

namespace vantrel {

class FolderTree;
struct Machine;

/// What the commands of the main window do. Each acts on the active pane and ends by bringing menus
/// and buttons in line.
class MainCommands {
  public:
    explicit MainCommands(const MainServices& services) : with_(services), viewer_(services) {}

    void copy();
    void move();
    void remove();
    void selectAll();
    /// Shows the selected file in the viewer, or hides the viewer.
    void displayFile();
    /// Prints the file displayed.
    void print();
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
    /// The pane that is not the active one becomes it; the keyboard goes with it.
    void otherPane();
    /// Lets the operator type what the names of the active pane shall hold.
    void quickFilter();
    /// Shows only names of a pane that hold this text; an empty one shows all. What was selected
    /// and is still shown stays selected.
    void filterNames(ActiveSide side, const std::string& text);
    /// Shows the lines of the viewer with their numbers, or without again.
    void lineNumbers();
    /// Shows a job of the controller in the viewer, fetched to a temporary place for it.
    void viewOnController();
    /// Whether something in the selection of `source` could be copied to the other pane.
    bool canDrop(ActiveSide source) const;
    /// The selection of `source` was dropped onto the other pane: what can be copied is copied.
    void drop(ActiveSide source);
    void mnuEnd();

    /// Makes a pane the active one; the controller pane cannot be while the viewer stands in its
    /// place.
    void activate(ActiveSide side);
    /// The same, and gives the pane's list the keyboard: the active pane is the one that keys act
    /// on.
    void workIn(ActiveSide side);
    /// Refills a pane after another entry of its filter box was chosen.
    void chooseFilter(ActiveSide side);
    /// Lists a folder in the PC pane and shows `tree` in place of the old folder tree; a failure is
    /// told and changes nothing.
    void openPCFolder(const std::string& folder, FolderTree tree);
    /// Leaves a mode that the controller model does not have, and shows what is available.
    void applyHispeedAvailability();
    /// Shows a mode that the session was told by name.
    void modeWasChanged();
    /// To be called when mode, port or address may have changed, with the machine that was in force
    /// before: empties the controller pane when it belongs to another machine. No connection is
    /// made.
    void machineMayHaveChanged(const Machine& before);
    /// What stands beside the robot box, of the robot in force.
    void showRobot();
    /// After a change of language: title, counts and the name of a robot's colour.
    void recaption();
    /// Brings menus and buttons in line with the state.
    void updateStates();
    /// What decides now what is offered.
    CommandInput input() const;

  private:
    void edit(const std::string& path);
    std::optional<FileKind> selectedKind(ActiveSide side) const;
    bool isJobSelected() const;
    void sortAnew(ActiveSide side);
    void switchTo(TransferMode mode);
    void showMode();

    MainServices with_;
    ViewerCommands viewer_;
    TransferMode shownMode_ = TransferMode::Bsc;
};

} // namespace vantrel
