#include "ui/frmZuroVant.h"

#include "app/commands/CommandRunner.h"
#include "app/commands/MainCommands.h"
#include "app/commands/ModeCommands.h"
#include "app/folders/PCFileCommands.h"
#include "app/settings/SettingsFile.h"
#include "app/window/ScreenGeometry.h"
#include "app/window/WindowLayout.h"
#include "files/FolderTree.h"
#include "lang/MessageTable.h"
#include "link/ShownText.h"
#include "ui/CommandToolBar.h"
#include "ui/ControlPlaces.h"
#include "ui/FileListControl.h"
#include "ui/FileViewer.h"
#include "ui/FolderTreeDropDown.h"
#include "ui/MainWindowKeys.h"
#include "ui/MainWindowLook.h"
#include "ui/NativeControls.h"
#include "ui/OperationGuard.h"
#include "ui/PathDisplay.h"
#include "ui/QuickFilter.h"
#include "ui/ViewerSearch.h"
#include "ui/dialogs/DialogBasics.h"
#include "ui/look/IconSet.h"
#include "ui/look/SystemLook.h"
#include "ui/look/WindowFont.h"
#include "ui/look/WxText.h"

#include <chrono>
#include <cmath>
#include <utility>

#include <wx/choice.h>
#include <wx/iconbndl.h>
#include <wx/stattext.h>
#include <wx/statusbr.h>
#include <wx/utils.h>
#include <wx/wupdlock.h>

namespace vantrel {

frmZuroVant::frmZuroVant(ApplicationState& state, const MessageTable& messages,
                         OperationGuard& guard, std::span<const CommandRow> table)
    : wxFrame(nullptr, wxID_ANY, wxString(), wxDefaultPosition, wxDefaultSize,
              wxDEFAULT_FRAME_STYLE, "frmZuroVant"),
      state_(state), messages_(messages), table_(table), guard_(guard), controls_(*this, table),
      panels_(*controls_.stsFileInf), menus_(*this, table),
      drag_(*controls_.lsvPC, *controls_.lsvCtrl, guard), place_(*this, *controls_.surface),
      statusLine_(controls_.stsFileInf->GetCharHeight()) {
    SetIcons(programIcons());
    // No help for menu entries in the panel that shows the PC's count.
    SetStatusBarPane(-1);
    showNotice({});
    bindEvents();
    guard_.guard(this);
}

frmZuroVant::~frmZuroVant() {
    guard_.guard(nullptr);
}

void frmZuroVant::connect(MainCommands& commands, PCFileCommands& files,
                          const CommandRunner& runner) {
    updateStates_ = [&commands] { commands.updateStates(); };
    lookForChanges_ = [&files](bool closely) { files.lookForChanges(closely); };
    drag_.selectedPaths = [&files] { return files.selectedPaths(); };
    drag_.onFilesDropped = [&files](const std::vector<std::string>& paths) {
        files.takeDropped(paths);
    };
    bindPane(ActiveSide::PC, commands, runner);
    bindPane(ActiveSide::Controller, commands, runner);
    const auto run = [&runner](const CommandRow& command, CommandPlace place) {
        runner.run(command, place);
    };
    menus_.onChosen = run;
    for (CommandToolBar* bar : controls_.toolBars())
        bar->onPressed = run;
    // The window gets a key before the control that has the focus.
    Bind(wxEVT_CHAR_HOOK, [keys = MainWindowKeys(*this, controls_, state_, commands, runner)](
                              wxKeyEvent& event) { keys.take(event); });
    panels_.onResultClicked = [this, &runner] {
        for (const CommandRow* const command : commandsAt(table_, CommandPlace::stsFileInf))
            CallAfter([command, &runner] { runner.runIfOffered(*command); });
    };
    controls_.lsvPC->onColumnClicked = [&commands](int column) { commands.clickColumn(column); };
    drag_.canDrop = [&commands](ActiveSide source) { return commands.canDrop(source); };
    drag_.onDropped = [&commands](ActiveSide source) { commands.drop(source); };
}

FileListControl& frmZuroVant::pane(ActiveSide side) const {
    return *(side == ActiveSide::PC ? controls_.lsvPC : controls_.lsvCtrl);
}

QuickFilter& frmZuroVant::quickFilter(ActiveSide side) const {
    return *(side == ActiveSide::PC ? controls_.pcQuickFilter : controls_.ctrlQuickFilter);
}

wxChoice& frmZuroVant::filter(ActiveSide side) const {
    return *(side == ActiveSide::PC ? controls_.cmbPCFileType : controls_.cmbCtrlFileType);
}

int frmZuroVant::dpi() const {
    return int(std::lround(designDpi() * captionRoom_));
}

int frmZuroVant::designDpi() const {
    // Device-independent pixels are 96 to the inch; a scaled desktop counts in them already. Larger
    // texts need as much more room: an inch is what the operator's texts take it for.
    constexpr int designResolution = 96;
    return int(std::lround(FromDIP(designResolution) * textScale()));
}

void frmZuroVant::makeRoomForCaptions() {
    const double room = captionRoom(controls_, designDpi());
    const bool isResized = room != captionRoom_ && placed_;
    const WindowPlacement now = isResized ? placement() : WindowPlacement{};
    captionRoom_ = room;
    for (CommandToolBar* bar : controls_.toolBars())
        bar->enlarge(room);
    if (isResized) {
        place_.resize(now, dpi());
        setColumnWidths(now.columnWidths);
    }
    lay();
}

/// The systems' own bars keep the height of the font with which they were made.
void frmZuroVant::fitStatusBar() {
    const int line = controls_.stsFileInf->GetCharHeight();
    if (line == statusLine_)
        return;
    statusLine_ = line;
    constexpr double withMargins = 1.1; // what the bar has at first
    controls_.stsFileInf->SetMinHeight(int(std::lround(line * withMargins)) + 1);
    PositionStatusBar();
}

void frmZuroVant::bindEvents() {
    Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
        event.Skip();
        lay();
    });
    Bind(wxEVT_CLOSE_WINDOW, &frmZuroVant::close, this);
    Bind(wxEVT_DPI_CHANGED, [this](wxDPIChangedEvent& event) {
        event.Skip();
        CallAfter(&frmZuroVant::lay);
    });
    controls_.fraFile.panel->Bind(wxEVT_LEFT_DOWN, [this](wxMouseEvent& event) {
        controls_.rtxFileDisp->SetFocus();
        event.Skip();
    });
    controls_.viewerSearch->onShownOrHidden = [this] { lay(); };
    controls_.cmbRbtName->Bind(wxEVT_CHOICE, [this](wxCommandEvent& event) {
        controls_.cmbRbtName->SetToolTip(event.GetString());
        if (onRobotChosen)
            onRobotChosen(event.GetSelection());
    });
    chooseInOpenListOnly(*controls_.cmbRbtName);
    tellRightPresses(*controls_.cmbRbtName);
    controls_.cmbRbtName->Bind(wxEVT_CONTEXT_MENU, [this](wxContextMenuEvent& event) {
        wxWindow& box = *controls_.cmbRbtName;
        // Below the box, where the menu key's menu belongs.
        const wxPoint below = box.ClientToScreen(wxPoint(0, box.GetSize().y));
        const wxPoint place = event.GetPosition();
        updateStates_();
        menus_.popUp(CommandPlace::mnuRobot, box, place == wxDefaultPosition ? below : place);
    });
}

void frmZuroVant::close(wxCloseEvent& event) {
    const auto& mayClose = event.CanVeto() ? onClose : onForcedClose;
    if (!mayClose || mayClose())
        Destroy();
    else if (event.CanVeto())
        event.Veto();
    else
        closesWhenUnlocked_ = guard_.isLocked();
}

void frmZuroVant::bindPane(ActiveSide side, MainCommands& commands, const CommandRunner& runner) {
    auto& list = pane(side);
    list.onSelectionChanged = updateStates_;
    list.onActivated = [&commands, side] { commands.activate(side); };
    list.onKey = [&runner, side](wxKeyEvent& event) {
        if (!runner.listKey(side, event.GetKeyCode(), event.ControlDown()))
            event.Skip();
    };
    list.onOpen = [&commands, side](long row) {
        if (row >= 0)
            commands.openItem(side, std::size_t(row));
    };
    list.onDragBegun = [this, side] { drag_.begin(side); };
    list.onMenuRequested = [this, side](wxPoint place) {
        // The press may have selected another item a moment ago.
        updateStates_();
        menus_.popUp(CommandPlace::mnuRightClick, pane(side), place);
    };
    quickFilter(side).onShownOrHidden = [this] { lay(); };
    quickFilter(side).onChanged = [&commands, side](const std::string& text) {
        commands.filterNames(side, text);
    };
    quickFilter(side).onLeft = [&commands, side] { commands.workIn(side); };
    filter(side).Bind(wxEVT_CHOICE,
                      [&commands, side](wxCommandEvent&) { commands.chooseFilter(side); });
    auto* frame = side == ActiveSide::PC ? controls_.fraPC.panel : controls_.fraCtrl.panel;
    frame->Bind(wxEVT_LEFT_DOWN, [&commands, side](wxMouseEvent& event) {
        commands.workIn(side);
        event.Skip();
    });
}

void frmZuroVant::watchPCFolder() {
    constexpr int interval = 2000; // milliseconds; a look costs one question to the system
    Bind(wxEVT_TIMER, [this](wxTimerEvent&) {
        // Rows do not move below a pointer that is about to choose one.
        const bool isPointing = drag_.isDragging() || wxGetMouseState().LeftIsDown();
        const auto begin = std::chrono::steady_clock::now();
        // What is found may have to be told, and nobody answers a box that opens over another one.
        if (!IsShownOnScreen() || IsIconized() || isPointing || isDialogOpen() || begin < nextLook_)
            return;
        lookForChanges_(false);
        // A folder that takes long and changes all the time leaves room for work.
        constexpr int restPerLook = 20;
        const auto end = std::chrono::steady_clock::now();
        nextLook_ = end + restPerLook * (end - begin);
    });
    // Editors change a file in place, which the folder's own date does not tell; whoever has worked
    // in one comes back to this window.
    Bind(wxEVT_ACTIVATE, [this](wxActivateEvent& event) {
        event.Skip();
        CallAfter([this, isActive = event.GetActive()] {
            if (isActive && std::exchange(wasLeft_, false))
                lookForChanges_(true);
            else if (!isActive && !wxGetActiveWindow())
                wasLeft_ = true;
        });
    });
    watch_.Start(interval);
}

/// A list that is locked may hand the keyboard on to the other one, which is not the active one for
/// that; the keys would act on it all the same.
void frmZuroVant::keepFocusInActivePane() {
    const auto other = state_.Active == ActiveSide::PC ? ActiveSide::Controller : ActiveSide::PC;
    if (!state_.Busy && pane(other).IsDescendant(FindFocus()))
        pane(state_.Active).focus();
}

void frmZuroVant::lay() {
    if (!placed_ || IsIconized())
        return;
    const int resolution = dpi();
    const wxSize outer = GetSize();
    placeControls(controls_,
                  windowLayout({twipsFromPixels(outer.GetWidth(), resolution),
                                twipsFromPixels(outer.GetHeight(), resolution)},
                               robotRoom(controls_, resolution)),
                  resolution);
    showWholeEntries(*controls_.cmbRbtName);
    controls_.surface->Refresh();
}

PaneList& frmZuroVant::list(ActiveSide side) {
    return pane(side);
}

int frmZuroVant::filterIndex(ActiveSide side) const {
    return filter(side).GetSelection();
}

void frmZuroVant::setFilterChoices(ActiveSide side, const std::vector<std::string>& choices) {
    auto& box = filter(side);
    box.Clear();
    for (const auto& choice : choices)
        box.Append(toWx(choice));
    if (!choices.empty())
        box.SetSelection(0);
}

void frmZuroVant::setStatus(ActiveSide side, const std::string& text) {
    panels_.setPane(side, text);
}

void frmZuroVant::showNotice(const std::string& text) {
    panels_.setNotice(text);
}

void frmZuroVant::setResult(const std::string& text) {
    panels_.setResult(text);
}

void frmZuroVant::setBusyPointer(bool busy) {
    if (busy)
        wxBeginBusyCursor();
    else
        wxEndBusyCursor();
}

void frmZuroVant::setLocked(bool locked) {
    controls_.trvFolderList->dropDown(false);
    if (locked)
        guard_.lock();
    else
        guard_.unlock();
    if (closesWhenUnlocked_ && !state_.Busy)
        CallAfter([this] { Close(true); });
    // A command that works on a pane for a moment is over by then.
    if (!state_.Busy)
        CallAfter(&frmZuroVant::keepFocusInActivePane);
    updateStates_();
}

void frmZuroVant::yield() {
    // Before the start is over a yield would paint a window that is not whole yet.
    if (state_.StartupDone)
        guard_.yield();
}

void frmZuroVant::applyFont() {
    applyCaptionFont(*this, state_);
    fitStatusBar();
    controls_.rtxFileDisp->setFontSize(captionFont(state_).GetPointSize());
    makeRoomForCaptions();
}

void frmZuroVant::applyCaptions() {
    const wxWindowUpdateLocker frozen(this);
    menus_.applyCaptions(messages_);
    captionControls(controls_, messages_);
    makeRoomForCaptions();
}

void frmZuroVant::place(const std::array<std::int32_t, 8>& positions) {
    place_.put(positions, dpi(), captionRoom_ > 1);
    constexpr std::size_t firstWidth = 4;
    setColumnWidths({double(positions[firstWidth]), double(positions[firstWidth + 1]),
                     double(positions[firstWidth + 2])});
    placed_ = true;
    lay();
}

void frmZuroVant::setColumnWidths(const std::array<double, 3>& twips) {
    std::array<int, FileListControl::columnCount> pixels{};
    for (std::size_t column = 0; column < pixels.size(); ++column)
        pixels.at(column) = pixelsFromTwips(twips.at(column), dpi());
    pane(ActiveSide::PC).setColumnWidths(pixels);
}

WindowPlacement frmZuroVant::placement() const {
    return place_.placement(dpi(), pane(ActiveSide::PC).columnWidths());
}

void frmZuroVant::showStates(const CommandInput& input) {
    menus_.applyStates(input);
    showCommandStates(controls_, input);
}

void frmZuroVant::showMode(const ModeLook& look) {
    SetTitle(toWx(look.caption));
    showTransferMode(controls_, look);
    showMark(controls_, mark_);
    lay(); // a control that was placed while hidden may not stand where it was told
}

void frmZuroVant::showActiveSide(ActiveSide side) {
    showActivePane(controls_, side);
    lay();
}

void frmZuroVant::showSerialLine(const std::string& port, const std::string& format) {
    const wxString text = toWx(port + "\n" + format);
    controls_.lbl232CParam->SetLabelText(text);
    controls_.lbl232CParam->SetToolTip(text);
}

void frmZuroVant::showAddress(const std::string& address) {
    controls_.lblIPAddr2->SetLabelText(toWx(address));
    controls_.lblIPAddr2->SetToolTip(toWx(address));
}

void frmZuroVant::showRobotMark(const PlaceMark& mark) {
    mark_ = mark;
    showMark(controls_, mark_);
    lay();
}

void frmZuroVant::showFolder(const std::string& path) {
    const auto node = folderNode(path);
    controls_.trvFolderName->showFolder(toWx(node.text), node.image, toWx(path));
}

void frmZuroVant::showView(ActiveSide side, std::int16_t displayType) {
    const ListView view = listView(displayType);
    // The controller's list keeps its appearance in every view.
    if (side == ActiveSide::PC)
        pane(side).setView(view, view == ListView::Details ? Appearance::Flat
                                                           : Appearance::ThreeDimensional);
    else
        pane(side).setView(view);
}

void frmZuroVant::selectAll(ActiveSide side) {
    pane(side).selectAll();
}

void frmZuroVant::openQuickFilter(ActiveSide side) {
    quickFilter(side).open();
}

void frmZuroVant::closeQuickFilter(ActiveSide side) {
    quickFilter(side).close();
}

void frmZuroVant::showFile(const std::string& name, std::string_view text) {
    controls_.lblFileName->SetLabelText(toWx(shownText(name)));
    controls_.lblFileName->SetToolTip(toWx(shownText(name)));
    controls_.rtxFileDisp->showText(text);
    exchangePanes(true);
}

void frmZuroVant::hideFile() {
    exchangePanes(false);
    controls_.viewerSearch->close();
    controls_.rtxFileDisp->clear();
}

void frmZuroVant::exchangePanes(bool viewer) {
    const wxWindowUpdateLocker frozen(controls_.surface);
    auto* leaving = controls_.fraCtrl.panel;
    auto* entering = controls_.fraFile.panel;
    if (!viewer)
        std::swap(leaving, entering);
    // A hidden window that has the focus would keep it to itself.
    if (leaving->IsDescendant(FindFocus()))
        pane(ActiveSide::PC).focus();
    leaving->Hide();
    entering->Show();
    lay();
    bringToFront(*entering);
}

void frmZuroVant::closeWindow() {
    Close();
}

void frmZuroVant::clear() {
    controls_.cmbRbtName->Clear();
}

void frmZuroVant::add(const std::string& name) {
    controls_.cmbRbtName->Append(toWx(name));
}

void frmZuroVant::select(int index) {
    controls_.cmbRbtName->SetSelection(index);
    lay(); // there may be room for a longer name
    // The closed box may be too narrow for what tells two robots apart.
    controls_.cmbRbtName->SetToolTip(controls_.cmbRbtName->GetStringSelection());
}

} // namespace vantrel
