#include "app/CommandStates.h"

#include <algorithm>
#include <cstddef>
#include <span>

namespace vantrel {
namespace {

constexpr int controllerJobFilter = 0;
constexpr std::array<std::string_view, 4> displayKeys{"DispBig", "DispSmall", "DispList",
                                                      "DispDetail"};
constexpr std::size_t details = 3;

/// Which of the commands that work on files a pane offers.
struct FileCommandsOffered {
    bool copy = true, move = true, remove = true;
};

// Data files of a controller cannot be selected for deletion, so neither deleted nor moved; and a
// move would ignore that jobs are to be received as ".JBR" files.
FileCommandsOffered offeredByController(const CommandInput& input) {
    const bool jobs = input.controllerFilter == controllerJobFilter;
    return {.copy = true, .move = jobs && !input.JBR, .remove = jobs};
}

FileCommandsOffered offeredByPC(const CommandInput& input) {
    const bool transferable = input.selectedKind == FileKind::JobFile;
    return {.copy = transferable, .move = transferable, .remove = true};
}

void check(std::span<CommandState> entries, std::int16_t index) {
    if (index >= 0 && static_cast<std::size_t>(index) < entries.size())
        entries[static_cast<std::size_t>(index)].checked = true;
}

void setView(CommandStates& states, const CommandInput& input, bool controller) {
    const std::int16_t type = controller ? input.ctrlDispType : input.pcDispType;
    check(states.mnuDisp, type);
    check(states.mnuFileDisp, type);
    const std::size_t offered = controller ? details : displayKeys.size();
    if (type >= 0 && static_cast<std::size_t>(type) < offered)
        states.button(displayKeys[static_cast<std::size_t>(type)]).checked = true;
    if (!controller)
        return;
    states.button("DispDetail").enabled = false;
    states.mnuDisp[details].enabled = false;
    states.mnuFileDisp[details].enabled = false;
}

// A controller's listing knows names only, so size and date order nothing there.
void setSort(CommandStates& states, const CommandInput& input, bool controller) {
    for (const auto menu : {std::span(states.mnuSort), std::span(states.mnuSortIcon)}) {
        check(menu, controller ? input.ctrlSortType : input.pcSortType);
        for (CommandState& entry : menu.subspan(1))
            entry.enabled = !controller;
    }
}

void offer(std::span<CommandState> entries, const FileCommandsOffered& offered) {
    entries[fileCopy].enabled = offered.copy;
    entries[fileMove].enabled = offered.move;
    entries[fileDelete].enabled = offered.remove;
}

void setFileCommands(CommandStates& states, const CommandInput& input, bool controller) {
    const auto offered = controller ? offeredByController(input) : offeredByPC(input);
    offer(states.mnuFile, offered);
    offer(states.mnuRightFile, offered);
    states.button("FileCopy").enabled = offered.copy;
    states.button("FileMove").enabled = offered.move;
    states.button("FileDelete").enabled = offered.remove;
    // A press in `tlbFile` makes the controller pane the active one first.
    offer(states.tlbFile, offeredByController(input));
    // A click on a folder takes the deletion off the buttons and the pop-up menu.
    if (!controller && input.selectedKind == FileKind::Folder) {
        states.button("FileDelete").enabled = false;
        states.mnuRightFile[fileDelete].enabled = false;
    }
}

void setViewer(CommandStates& states, const CommandInput& input, bool controller) {
    states.mnuFile[fileDisplay].enabled = !controller;
    states.button("FileDisp") = {.enabled = !controller, .checked = input.viewerShown};
    // Printing is of the file displayed.
    states.mnuFile[filePrint].enabled = input.viewerShown;
    states.tlbPC[1].state.enabled = input.viewerShown;
    // The controller pane lies under the viewer and cannot become the active one.
    states.tlbCtrlButton.state.enabled = !input.viewerShown;
    for (CommandState& button : states.tlbFile)
        button.enabled = button.enabled && !input.viewerShown;
}

void setMode(CommandStates& states, const CommandInput& input) {
    const bool hispeed = input.mode == TransferMode::HispeedLink;
    states.mnuModeHiSpeed = {.enabled = input.hispeedAvailable, .checked = hispeed};
    states.mnuModeBsc = {.enabled = true, .checked = !hispeed};
    states.button("modeHiSpeed") = states.mnuModeHiSpeed;
    states.button("modeBsc") = states.mnuModeBsc;
}

void disable(std::span<CommandState> entries) {
    for (CommandState& entry : entries)
        entry.enabled = false;
}

void disable(std::span<ButtonState> buttons) {
    for (ButtonState& button : buttons)
        button.state.enabled = false;
}

void lock(CommandStates& states) {
    states.unlocked = false;
    disable(states.mnuFile);
    disable(states.mnuRightFile);
    disable(states.mnuDisp);
    disable(states.mnuFileDisp);
    disable(states.mnuSort);
    disable(states.mnuSortIcon);
    disable(states.mnuOpt);
    disable(states.mnuHelp);
    disable(states.tlbMain);
    disable(states.tlbFile);
    disable(states.tlbPC);
    for (CommandState* state :
         {&states.mnuModeHiSpeed, &states.mnuModeBsc, &states.mnuRefresh, &states.mnuRightRefresh,
          &states.mnuVer, &states.mnuEnd, &states.tlbPCButton.state, &states.tlbCtrlButton.state})
        state->enabled = false;
}

} // namespace

const CommandState& CommandStates::button(std::string_view key) const {
    return std::ranges::find(tlbMain, key, &ButtonState::key)->state;
}

CommandState& CommandStates::button(std::string_view key) {
    return std::ranges::find(tlbMain, key, &ButtonState::key)->state;
}

CommandStates commandStates(const CommandInput& input) {
    const bool controller = input.active == ActiveSide::Controller;
    CommandStates states;
    setView(states, input, controller);
    setSort(states, input, controller);
    setFileCommands(states, input, controller);
    setViewer(states, input, controller);
    setMode(states, input);
    states.tlbPCButton.state.checked = !controller;
    states.tlbCtrlButton.state.checked = controller;
    if (input.locked)
        lock(states);
    return states;
}

} // namespace vantrel
