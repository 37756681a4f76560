#pragma once

#include "base/ApplicationState.h"
#include "base/Connection.h"
#include "files/FileKinds.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace vantrel {

struct CommandTargets;

/// Everything that decides what the menus and tool bars offer.
struct CommandInput {
    ActiveSide active = ActiveSide::PC;
    std::int16_t pcDispType = 1, ctrlDispType = 1;
    std::int16_t pcSortType = 0, ctrlSortType = 0;
    TransferMode mode = TransferMode::Bsc;
    bool hispeedAvailable = true;
    bool locked = false;      ///< an operation runs
    bool viewerShown = false; ///< the viewer stands in place of the controller pane
    bool lineNumbers = false; ///< in the viewer
    /// Of the selected item of `lsvPC`; nothing when there is none or its name is empty.
    std::optional<FileKind> selectedKind = {};
    std::optional<FileKind> controllerKind = {}; ///< the same of `lsvCtrl`
    bool jobSelected = false; ///< among the items selected in the active pane is a job file
    int controllerFilter = 0; ///< the chosen entry of `cmbCtrlFileType`
    bool JBR = false;
    bool hasResult = false;                   ///< a command has ended
    bool hasRobot = false;                    ///< a registered robot is in force, not a serial line
    bool hasBack = false, hasForward = false; ///< in the history of the PC folder
};

/// The menus and tool bars, by their names.
enum class CommandPlace {
    menuBar, ///< a command among the menus
    mnuFileMain,
    mnuDispMain,
    mnuTransMode,
    mnuSortMain,
    mnuOptMain,
    mnuHelpMain,
    mnuToolsMain,  ///< what goes beyond the other menus, behind them
    stsFileInf,    ///< a click on the result in the status bar
    mnuRobot,      ///< the pop-up menu of the robot box
    mnuRightClick, ///< the panes' pop-up menu, and the menus in it:
    mnuFileDispMain,
    mnuSortIconMain,
    mnuRightTools,
    tlbMain,
    tlbPC,
    tlbFile,
    tlbPCButton,
    tlbCtrlButton,
};

constexpr bool isToolBar(CommandPlace place) {
    return place >= CommandPlace::tlbMain;
}

/// Where a command is offered. A place has its groups in their order, a line between two, and the
/// commands of a group in the order of the table.
struct CommandOffer {
    CommandPlace place = CommandPlace::menuBar;
    int group = 0; ///< of `menuBar`: the place among the menus
    /// Of the menu entry; a button goes by the command's icon.
    std::string_view name = {};
};

/// A key that works in the lists of the panes only.
struct ListKey {
    int code = 0; ///< the character's, 0 for no key
    bool withControl = false;
    bool onPCOnly = false;
};

/// What shows whether a command that is a choice is the one in force.
enum class CommandIndicator { None, Button, Everywhere };

/// A command of the main window. Everything about it stands in its row of the table.
struct CommandRow {
    std::int32_t caption = 0;   ///< message of its menu entries
    std::int32_t tip = 0;       ///< message of its buttons
    std::string_view icon = {}; ///< of its buttons, and their key
    /// As the menus show it: "F1" to "F12" act wherever the focus is, another key as the
    /// accelerator of an entry in the menu bar.
    std::string_view key = {};
    ListKey listKey = {};
    std::vector<CommandOffer> offers; ///< by a key it is offered where its first one is
    /// Whether it can do its work; without a rule it always can.
    bool (*isAvailable)(const CommandInput&, CommandPlace) = nullptr;
    CommandIndicator indicator = CommandIndicator::None;
    bool (*isInForce)(const CommandInput&, CommandPlace) = nullptr;
    void (*run)(const CommandTargets&) = nullptr;
};

struct CommandState {
    bool enabled = true;
    bool checked = false; ///< of a menu entry the check mark, of a button: pressed

    bool operator==(const CommandState&) const = default;
};

/// A menu, with the message of its caption; `mnuRightClick` has none.
struct MenuHead {
    CommandPlace place;
    std::int32_t caption;
};

/// The commands of the main window.
std::span<const CommandRow> commandTable();
/// The menus of the bar in their order.
std::span<const MenuHead> menuBarHeads();
/// The menus at the end of `mnuRightClick`.
std::span<const MenuHead> popUpHeads();

/// What a place offers, in its order; null for a line between two groups.
std::vector<const CommandRow*> commandsAt(std::span<const CommandRow> table, CommandPlace place);
const CommandOffer* offerAt(const CommandRow& command, CommandPlace place);
/// While an operation runs nothing is offered; check marks stay.
CommandState commandState(const CommandRow& command, CommandPlace place, const CommandInput& input);

} // namespace vantrel
