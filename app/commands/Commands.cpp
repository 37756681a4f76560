#include "app/commands/Commands.h"

#include "app/commands/CommandRunner.h"
#include "app/commands/HelpCommands.h"
#include "app/commands/MainCommands.h"
#include "app/folders/PCFileCommands.h"
#include "app/lists/ListTransferCommands.h"
#include "lang/MessageNumbers.h"

#include <algorithm>

namespace vantrel {
namespace {

using enum CommandPlace;
using Input = const CommandInput&;
using Targets = const CommandTargets&;

constexpr int controllerJobFilter = 0;
constexpr int keyBackspace = 8;
constexpr int keyDelete = 127;

bool isPC(Input input) {
    return input.active == ActiveSide::PC;
}

bool isTransferable(Input input) {
    return input.selectedKind == FileKind::JobFile;
}

// Data files of a controller cannot be selected for deletion, so neither deleted nor moved.
bool showsControllerJobs(Input input) {
    return input.controllerFilter == controllerJobFilter;
}

bool canCopy(Input input, CommandPlace) {
    return !isPC(input) || isTransferable(input);
}

// A move would ignore that jobs are to be received as ".JBR" files.
bool canMove(Input input, CommandPlace) {
    return isPC(input) ? isTransferable(input) : showsControllerJobs(input) && !input.JBR;
}

// A click on a folder takes the deletion off the buttons and the pop-up menu.
bool canDelete(Input input, CommandPlace place) {
    if (!isPC(input))
        return showsControllerJobs(input);
    return input.selectedKind != FileKind::Folder || place == mnuFileMain;
}

// A controller's listing knows names only: there are no details, and size and date order nothing.
bool isOnPC(Input input, CommandPlace) {
    return isPC(input);
}

bool isViewerShown(Input input, CommandPlace) {
    return input.viewerShown;
}

// The controller pane lies under the viewer and cannot become the active one.
bool isControllerPaneShown(Input input, CommandPlace) {
    return !input.viewerShown;
}

bool hasLineNumbers(Input input, CommandPlace) {
    return input.lineNumbers;
}

bool hasHispeed(Input input, CommandPlace) {
    return input.hispeedAvailable;
}

bool hasNamedItem(Input input, CommandPlace) {
    return isPC(input) && input.selectedKind.has_value();
}

bool canViewOnController(Input input, CommandPlace) {
    return !isPC(input) && input.controllerKind == FileKind::JobFile;
}

bool hasBack(Input input, CommandPlace) {
    return input.hasBack;
}

bool hasForward(Input input, CommandPlace) {
    return input.hasForward;
}

bool hasSelectedJob(Input input, CommandPlace) {
    return input.jobSelected;
}

bool hasResult(Input input, CommandPlace) {
    return input.hasResult;
}

bool hasRobot(Input input, CommandPlace) {
    return input.hasRobot;
}

std::int16_t view(Input input) {
    return isPC(input) ? input.pcDispType : input.ctrlDispType;
}

template <std::int16_t type>
bool isView(Input input, CommandPlace) {
    return view(input) == type;
}

bool isDetails(Input input, CommandPlace place) {
    return view(input) == 3 && (isPC(input) || !isToolBar(place));
}

template <std::int16_t type>
bool isSortedBy(Input input, CommandPlace) {
    return (isPC(input) ? input.pcSortType : input.ctrlSortType) == type;
}

bool isHispeed(Input input, CommandPlace) {
    return input.mode == TransferMode::HispeedLink;
}

bool isBsc(Input input, CommandPlace place) {
    return !isHispeed(input, place);
}

template <ActiveSide side>
bool isActive(Input input, CommandPlace) {
    return input.active == side;
}

template <std::int16_t type>
void showView(Targets to) {
    to.main.mnuDisp(type);
}

template <std::int16_t type>
void sortBy(Targets to) {
    to.main.mnuSort(type);
}

constexpr auto button = CommandIndicator::Button;
constexpr auto everywhere = CommandIndicator::Everywhere;

// Keys of the lists are no accelerators: they work in the lists only.
const std::vector<CommandRow>& table() {
    static const std::vector<CommandRow> commands{
        {.caption = message::menuCopy,
         .tip = message::tipCopy,
         .icon = "FileCopy",
         .offers = {{mnuFileMain, 0, "mnuFile(0)"},
                    {mnuRightClick, 0, "mnuRightFile(0)"},
                    {tlbMain},
                    {tlbFile}},
         .isAvailable = canCopy,
         .run = [](Targets to) { to.main.copy(); }},
        {.caption = message::menuMove,
         .tip = message::tipMove,
         .icon = "FileMove",
         .offers = {{mnuFileMain, 0, "mnuFile(1)"},
                    {mnuRightClick, 0, "mnuRightFile(1)"},
                    {tlbMain},
                    {tlbFile}},
         .isAvailable = canMove,
         .run = [](Targets to) { to.main.move(); }},
        {.caption = message::menuDelete,
         .tip = message::tipDelete,
         .icon = "FileDelete",
         .listKey = {keyDelete},
         .offers = {{mnuFileMain, 0, "mnuFile(2)"},
                    {mnuRightClick, 0, "mnuRightFile(2)"},
                    {tlbMain},
                    {tlbFile}},
         .isAvailable = canDelete,
         .run = [](Targets to) { to.main.remove(); }},
        {.caption = message::menuSelectAll,
         .tip = message::tipSelectAll,
         .icon = "AllSelect",
         .listKey = {'A', true},
         .offers = {{mnuFileMain, 0, "mnuFile(3)"},
                    {mnuRightClick, 0, "mnuRightFile(3)"},
                    {tlbMain},
                    {tlbFile}},
         .run = [](Targets to) { to.main.selectAll(); }},
        {.caption = message::menuDisplayFile,
         .tip = message::tipDisplayFile,
         .icon = "FileDisp",
         .key = "F3",
         .offers = {{mnuFileMain, 1, "mnuFile(5)"}, {tlbMain, 3}},
         .isAvailable = isOnPC,
         .indicator = button,
         .isInForce = isViewerShown,
         .run = [](Targets to) { to.main.displayFile(); }},
        {.tip = message::tipUpFolder,
         .icon = "UpFolder",
         .listKey = {keyBackspace, false, true},
         .offers = {{tlbPC}},
         .run = [](Targets to) { to.main.upFolder(); }},
        {.caption = message::menuPrint, // of the file displayed
         .tip = message::tipPrint,
         .icon = "Print",
         .offers = {{mnuFileMain, 1, "mnuFile(6)"}, {tlbPC}},
         .isAvailable = isViewerShown,
         .run = [](Targets to) { to.main.print(); }},
        {.caption = message::menuExit,
         .key = "Alt+F4",
         .offers = {{mnuFileMain, 2, "mnuEnd"}},
         .run = [](Targets to) { to.main.mnuEnd(); }},
        {.caption = message::menuLargeIcons,
         .tip = message::tipLargeIcons,
         .icon = "DispBig",
         .offers = {{mnuDispMain, 0, "mnuDisp(0)"},
                    {mnuFileDispMain, 0, "mnuFileDisp(0)"},
                    {tlbMain, 2}},
         .indicator = everywhere,
         .isInForce = isView<0>,
         .run = showView<0>},
        {.caption = message::menuSmallIcons,
         .tip = message::tipSmallIcons,
         .icon = "DispSmall",
         .offers = {{mnuDispMain, 0, "mnuDisp(1)"},
                    {mnuFileDispMain, 0, "mnuFileDisp(1)"},
                    {tlbMain, 2}},
         .indicator = everywhere,
         .isInForce = isView<1>,
         .run = showView<1>},
        {.caption = message::menuList,
         .tip = message::tipList,
         .icon = "DispList",
         .offers = {{mnuDispMain, 0, "mnuDisp(2)"},
                    {mnuFileDispMain, 0, "mnuFileDisp(2)"},
                    {tlbMain, 2}},
         .indicator = everywhere,
         .isInForce = isView<2>,
         .run = showView<2>},
        {.caption = message::menuDetails,
         .tip = message::tipDetails,
         .icon = "DispDetail",
         .offers = {{mnuDispMain, 0, "mnuDisp(3)"},
                    {mnuFileDispMain, 0, "mnuFileDisp(3)"},
                    {tlbMain, 2}},
         .isAvailable = isOnPC,
         .indicator = everywhere,
         .isInForce = isDetails,
         .run = showView<3>},
        {.caption = message::menuModeHispeed,
         .tip = message::modeHispeed,
         .icon = "modeHiSpeed",
         .offers = {{mnuTransMode, 0, "mnuModeHiSpeed"}, {tlbMain, 1}},
         .isAvailable = hasHispeed,
         .indicator = everywhere,
         .isInForce = isHispeed,
         .run = [](Targets to) { to.main.mnuModeHiSpeed(); }},
        {.caption = message::menuModeBsc,
         .tip = message::modeBsc,
         .icon = "modeBsc",
         .offers = {{mnuTransMode, 0, "mnuModeBsc"}, {tlbMain, 1}},
         .indicator = everywhere,
         .isInForce = isBsc,
         .run = [](Targets to) { to.main.mnuModeBsc(); }},
        {.caption = message::menuByName,
         .offers = {{mnuSortMain, 0, "mnuSort(0)"}, {mnuSortIconMain, 0, "mnuSortIcon(0)"}},
         .indicator = everywhere,
         .isInForce = isSortedBy<0>,
         .run = sortBy<0>},
        {.caption = message::menuBySize,
         .offers = {{mnuSortMain, 0, "mnuSort(1)"}, {mnuSortIconMain, 0, "mnuSortIcon(1)"}},
         .isAvailable = isOnPC,
         .indicator = everywhere,
         .isInForce = isSortedBy<1>,
         .run = sortBy<1>},
        {.caption = message::menuByDate,
         .offers = {{mnuSortMain, 0, "mnuSort(2)"}, {mnuSortIconMain, 0, "mnuSortIcon(2)"}},
         .isAvailable = isOnPC,
         .indicator = everywhere,
         .isInForce = isSortedBy<2>,
         .run = sortBy<2>},
        {.caption = message::menuRefresh,
         .tip = message::tipRefresh,
         .icon = "Refresh",
         .key = "F5",
         .offers = {{menuBar, 4, "mnuRefresh"}, {mnuRightClick, 1, "mnuRightRefresh"}, {tlbMain}},
         .run = [](Targets to) { to.main.mnuRefresh(); }},
        {.caption = message::menuSettings,
         .offers = {{mnuOptMain, 0, "mnuOpt(0)"}},
         .run = [](Targets to) { to.windows.openSettings(); }},
        {.caption = message::menuSaveJobs,
         .offers = {{mnuOptMain, 1, "mnuOpt(2)"}},
         .run = [](Targets to) { to.lists.saveJobs(); }},
        {.caption = message::menuLoadJobs,
         .offers = {{mnuOptMain, 1, "mnuOpt(3)"}},
         .run = [](Targets to) { to.lists.loadJobs(); }},
        {.caption = message::menuSaveVariables,
         .offers = {{mnuOptMain, 1, "mnuOpt(4)"}},
         .run = [](Targets to) { to.lists.saveVariables(); }},
        {.caption = message::menuLoadVariables,
         .offers = {{mnuOptMain, 1, "mnuOpt(5)"}},
         .run = [](Targets to) { to.lists.loadVariables(); }},
        {.caption = message::menuLanguage,
         .offers = {{mnuOptMain, 2, "mnuOpt(7)"}},
         .run = [](Targets to) { to.windows.changeLanguage(); }},
        {.caption = message::menuManual,
         .key = "F1",
         .offers = {{mnuHelpMain, 0, "mnuHelp(0)"}},
         .run = [](Targets to) { to.help.mnuHelp(0); }},
        {.caption = message::menuAbout,
         .offers = {{mnuHelpMain, 0, "mnuVer"}},
         .run = [](Targets to) { to.windows.openVersionWindow(); }},
        {.caption = message::menuResult,
         .offers = {{mnuToolsMain, 0, "mnuTools(0)"}, {stsFileInf}},
         .isAvailable = hasResult,
         .run = [](Targets to) { to.windows.openResult(); }},
        {.caption = message::menuTestConnection,
         .offers = {{mnuToolsMain, 1, "mnuTools(1)"}, {mnuRobot, 0, "mnuRobot(0)"}},
         .run = [](Targets to) { to.windows.testConnection(); }},
        {.caption = message::menuRobotMark,
         .offers = {{mnuToolsMain, 1, "mnuTools(2)"}, {mnuRobot, 0, "mnuRobot(1)"}},
         .isAvailable = hasRobot,
         .run = [](Targets to) { to.windows.editRobotMark(); }},
        {.caption = message::menuSaveSelection,
         .offers = {{mnuToolsMain, 1, "mnuTools(3)"}, {mnuRightTools, 2, "mnuRightSaveSelection"}},
         .isAvailable = hasSelectedJob,
         .run = [](Targets to) { to.lists.saveSelection(); }},
        {.caption = message::menuNewFolder,
         .key = "F7",
         .offers = {{mnuToolsMain, 2, "mnuNewFolder"}, {mnuRightTools, 1, "mnuRightNewFolder"}},
         .isAvailable = isOnPC,
         .run = [](Targets to) { to.files.newFolder(); }},
        {.caption = message::menuRename,
         .key = "F2",
         .offers = {{mnuToolsMain, 2, "mnuRename"}, {mnuRightTools, 1, "mnuRightRename"}},
         .isAvailable = hasNamedItem,
         .run = [](Targets to) { to.files.rename(); }},
        {.caption = message::menuViewOnController,
         .key = "F3",
         .offers = {{mnuToolsMain, 2, "mnuViewOnController"},
                    {mnuRightTools, 1, "mnuRightViewOnController"}},
         .isAvailable = canViewOnController,
         .run = [](Targets to) { to.main.viewOnController(); }},
        {.caption = message::menuLineNumbers,
         .offers = {{mnuToolsMain, 2, "mnuLineNumbers"}},
         .isAvailable = isViewerShown,
         .indicator = everywhere,
         .isInForce = hasLineNumbers,
         .run = [](Targets to) { to.main.lineNumbers(); }},
        {.caption = message::menuGoToFolder,
         .key = "Ctrl+L",
         .offers = {{mnuToolsMain, 3, "mnuGoToFolder"}},
         .run = [](Targets to) { to.files.goToFolder(); }},
        {.caption = message::menuBack,
         .key = "Alt+Left",
         .offers = {{mnuToolsMain, 3, "mnuBack"}},
         .isAvailable = hasBack,
         .run = [](Targets to) { to.files.step(-1); }},
        {.caption = message::menuForward,
         .key = "Alt+Right",
         .offers = {{mnuToolsMain, 3, "mnuForward"}},
         .isAvailable = hasForward,
         .run = [](Targets to) { to.files.step(1); }},
        {.caption = message::menuQuickFilter,
         .key = "Ctrl+S",
         .offers = {{mnuToolsMain, 4, "mnuQuickFilter"}, {mnuRightTools, 3, "mnuRightQuickFilter"}},
         .run = [](Targets to) { to.main.quickFilter(); }},
        {.caption = message::menuOtherPane,
         .key = "F6",
         .offers = {{mnuToolsMain, 4, "mnuOtherPane"}},
         .isAvailable = isControllerPaneShown,
         .run = [](Targets to) { to.main.otherPane(); }},
        {.tip = message::tipPCPane,
         .icon = "PCButton",
         .offers = {{tlbPCButton}},
         .indicator = button,
         .isInForce = isActive<ActiveSide::PC>,
         .run = [](Targets to) { to.main.workIn(ActiveSide::PC); }},
        {.tip = message::tipControllerPane,
         .icon = "CTRLButton",
         .offers = {{tlbCtrlButton}},
         .isAvailable = isControllerPaneShown,
         .indicator = button,
         .isInForce = isActive<ActiveSide::Controller>,
         .run = [](Targets to) { to.main.workIn(ActiveSide::Controller); }},
    };
    return commands;
}

constexpr MenuHead barHeads[] = {
    {mnuFileMain, message::menuFile},          {mnuDispMain, message::menuView},
    {mnuTransMode, message::menuTransferMode}, {mnuSortMain, message::menuSort},
    {mnuOptMain, message::menuOptions},        {mnuHelpMain, message::menuHelp},
    {mnuToolsMain, message::menuTools}};
constexpr MenuHead subHeads[] = {{mnuFileDispMain, message::menuView},
                                 {mnuSortIconMain, message::menuSort},
                                 {mnuRightTools, message::menuTools}};

} // namespace

std::span<const CommandRow> commandTable() {
    return table();
}

std::span<const MenuHead> menuBarHeads() {
    return barHeads;
}

std::span<const MenuHead> popUpHeads() {
    return subHeads;
}

const CommandOffer* offerAt(const CommandRow& command, CommandPlace place) {
    const auto offer = std::ranges::find(command.offers, place, &CommandOffer::place);
    return offer == command.offers.end() ? nullptr : &*offer;
}

std::vector<const CommandRow*> commandsAt(std::span<const CommandRow> table, CommandPlace place) {
    std::vector<const CommandRow*> commands;
    for (const CommandRow& command : table)
        if (offerAt(command, place))
            commands.push_back(&command);
    const auto group = [place](const CommandRow* command) {
        return offerAt(*command, place)->group;
    };
    std::ranges::stable_sort(commands, {}, group);
    for (std::size_t next = 1; next < commands.size(); ++next) {
        if (group(commands[next - 1]) == group(commands[next]))
            continue;
        commands.insert(commands.begin() + std::ptrdiff_t(next), nullptr);
        ++next;
    }
    return commands;
}

CommandState commandState(const CommandRow& command, CommandPlace place,
                          const CommandInput& input) {
    CommandInput seen = input;
    // A press in `tlbFile` makes the controller pane the active one first.
    if (place == tlbFile)
        seen.active = ActiveSide::Controller;
    const bool isShown = place != tlbFile || isControllerPaneShown(input, place);
    const bool canRun = !command.isAvailable || command.isAvailable(seen, place);
    const bool isIndicated =
        command.indicator == everywhere || (command.indicator == button && isToolBar(place));
    return {.enabled = !input.locked && isShown && canRun,
            .checked = isIndicated && command.isInForce(seen, place)};
}

} // namespace vantrel
