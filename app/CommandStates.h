#pragma once

#include "base/ApplicationState.h"
#include "base/TransferMode.h"
#include "files/FileKinds.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

namespace vantrel {

/// Everything that decides what the menus and tool bars offer.
struct CommandInput {
    ActiveSide active = ActiveSide::PC;
    std::int16_t pcDispType = 1, ctrlDispType = 1;
    std::int16_t pcSortType = 0, ctrlSortType = 0;
    TransferMode mode = TransferMode::Bsc;
    bool hispeedAvailable = true;
    bool locked = false;      ///< an operation runs
    bool viewerShown = false; ///< the viewer stands in place of the controller pane
    /// Of the selected item of `lsvPC`; nothing when there is none or its name is empty.
    std::optional<FileKind> selectedKind = {};
    int controllerFilter = 0; ///< the chosen entry of `cmbCtrlFileType`
    bool JBR = false;
};

struct CommandState {
    bool enabled = true;
    bool checked = false; ///< of a menu entry the check mark, of a button: pressed

    bool operator==(const CommandState&) const = default;
};

struct ButtonState {
    std::string_view key;
    CommandState state;
};

/// Indexes of `mnuFile` and, up to `fileSelectAll`, of `mnuRightFile` and of the buttons of
/// `tlbFile`. 4 and 7 of `mnuFile` are separators.
enum FileCommand { fileCopy, fileMove, fileDelete, fileSelectAll, fileDisplay = 5, filePrint = 6 };

/// The state of every menu entry and tool-bar button, by the names of the menus and the keys of the
/// buttons.
struct CommandStates {
    bool unlocked = true; ///< the pane frames, the top-level menus and `tlbMain` as a whole

    std::array<CommandState, 8> mnuFile;
    std::array<CommandState, 4> mnuRightFile;
    std::array<CommandState, 4> mnuDisp, mnuFileDisp;
    std::array<CommandState, 3> mnuSort, mnuSortIcon;
    std::array<CommandState, 8> mnuOpt; ///< 1 and 6 are separators
    std::array<CommandState, 1> mnuHelp;
    CommandState mnuModeHiSpeed, mnuModeBsc;
    CommandState mnuRefresh, mnuRightRefresh, mnuVer, mnuEnd;

    std::array<ButtonState, 12> tlbMain{{{"FileCopy", {}},
                                         {"FileMove", {}},
                                         {"FileDelete", {}},
                                         {"AllSelect", {}},
                                         {"Refresh", {}},
                                         {"modeHiSpeed", {}},
                                         {"modeBsc", {}},
                                         {"DispBig", {}},
                                         {"DispSmall", {}},
                                         {"DispList", {}},
                                         {"DispDetail", {}},
                                         {"FileDisp", {}}}};
    std::array<CommandState, 4> tlbFile;
    std::array<ButtonState, 2> tlbPC{{{"UpFolder", {}}, {"Print", {}}}};
    ButtonState tlbPCButton{"PCButton", {}};
    ButtonState tlbCtrlButton{"CTRLButton", {}};

    /// A button of `tlbMain` by its key, which must be one of the twelve.
    CommandState& button(std::string_view key);
    const CommandState& button(std::string_view key) const;
};

CommandStates commandStates(const CommandInput& input);

} // namespace vantrel
