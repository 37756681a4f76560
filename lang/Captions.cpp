#include "lang/Captions.h"

#include "lang/MessageNumbers.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace vantrel {

namespace {

using enum Menu;

constexpr MenuCaption menuTable[] = {
    {{mnuFileMain}, message::menuFile},
    {{mnuFile, 0}, message::menuCopy},
    {{mnuFile, 1}, message::menuMove},
    {{mnuFile, 2}, message::menuDelete},
    {{mnuFile, 3}, message::menuSelectAll},
    {{mnuFile, 5}, message::menuDisplayFile},
    {{mnuFile, 6}, message::menuPrint},
    {{mnuEnd}, message::menuExit},
    {{mnuDispMain}, message::menuView},
    {{mnuDisp, 0}, message::menuLargeIcons},
    {{mnuDisp, 1}, message::menuSmallIcons},
    {{mnuDisp, 2}, message::menuList},
    {{mnuDisp, 3}, message::menuDetails},
    {{mnuTransMode}, message::menuTransferMode},
    {{mnuModeHiSpeed}, message::menuModeHispeed},
    {{mnuModeBsc}, message::menuModeBsc},
    {{mnuSortMain}, message::menuSort},
    {{mnuSort, 0}, message::menuByName},
    {{mnuSort, 1}, message::menuBySize},
    {{mnuSort, 2}, message::menuByDate},
    {{mnuRefresh}, message::menuRefresh},
    {{mnuOptMain}, message::menuOptions},
    {{mnuOpt, 0}, message::menuSettings},
    {{mnuOpt, 2}, message::menuSaveJobs},
    {{mnuOpt, 3}, message::menuLoadJobs},
    {{mnuOpt, 4}, message::menuSaveVariables},
    {{mnuOpt, 5}, message::menuLoadVariables},
    {{mnuOpt, 7}, message::menuLanguage},
    {{mnuHelpMain}, message::menuHelp},
    {{mnuHelp, 0}, message::menuManual},
    {{mnuVer}, message::menuAbout},
    {{mnuRightFile, 0}, message::menuCopy},
    {{mnuRightFile, 1}, message::menuMove},
    {{mnuRightFile, 2}, message::menuDelete},
    {{mnuRightFile, 3}, message::menuSelectAll},
    {{mnuFileDispMain}, message::menuView},
    {{mnuFileDisp, 0}, message::menuLargeIcons},
    {{mnuFileDisp, 1}, message::menuSmallIcons},
    {{mnuFileDisp, 2}, message::menuList},
    {{mnuFileDisp, 3}, message::menuDetails},
    {{mnuSortIconMain}, message::menuSort},
    {{mnuSortIcon, 0}, message::menuByName},
    {{mnuSortIcon, 1}, message::menuBySize},
    {{mnuSortIcon, 2}, message::menuByDate},
    {{mnuRightRefresh}, message::menuRefresh},
};

constexpr ToolTip toolTipTable[] = {
    {"FileCopy", message::tipCopy},        {"FileMove", message::tipMove},
    {"FileDelete", message::tipDelete},    {"AllSelect", message::tipSelectAll},
    {"Refresh", message::tipRefresh},      {"modeHiSpeed", message::modeHispeed},
    {"modeBsc", message::modeBsc},         {"DispBig", message::tipLargeIcons},
    {"DispSmall", message::tipSmallIcons}, {"DispList", message::tipList},
    {"DispDetail", message::tipDetails},   {"FileDisp", message::tipDisplayFile},
    {"UpFolder", message::tipUpFolder},    {"Print", message::tipPrint},
    {"PCButton", message::tipPCPane},      {"CTRLButton", message::tipControllerPane},
};

// Of `lblDisp` the element 3 is the heading that only the serial mode shows.
constexpr ControlCaption controlTable[] = {
    {"fraPC", 0, message::framePC},
    {"fraCtrl", 0, message::frameController},
    {"lblDisp", 0, message::labelFile},
    {"lblDisp", 1, message::labelFileType},
    {"lblDisp", 2, message::labelFileType},
    {"lblDisp", 3, message::labelSerialLine},
    {"lblDisp", 4, message::labelFolder},
    {"lblRbtName", 0, message::labelRobot},
    {"lblIPaddr", 0, message::labelIPAddress},
};

constexpr std::array columnTable{message::columnName, message::columnSize, message::columnDate};

/// The message of the first row that fits.
template <typename Row, typename Fits>
std::optional<std::int32_t> messageOf(std::span<const Row> rows, Fits fits) {
    const auto row = std::ranges::find_if(rows, fits);
    if (row == rows.end())
        return std::nullopt;
    return row->message;
}

} // namespace

std::span<const MenuCaption> menuCaptions() {
    return menuTable;
}

std::span<const ToolTip> toolTips() {
    return toolTipTable;
}

std::span<const std::int32_t> columnMessages() {
    return columnTable;
}

std::optional<std::int32_t> menuMessage(MenuItem item) {
    return messageOf(menuCaptions(), [&](const MenuCaption& row) { return row.item == item; });
}

std::optional<std::int32_t> controlMessage(std::string_view control, int index) {
    return messageOf(std::span<const ControlCaption>(controlTable), [&](const ControlCaption& row) {
        return row.control == control && row.index == index;
    });
}

} // namespace vantrel
