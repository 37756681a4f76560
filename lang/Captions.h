#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace vantrel {

/// The main window's menus, by their names. A menu with entries is one name and an index.
enum class Menu {
    mnuFileMain,
    mnuFile,
    mnuEnd,
    mnuTransMode,
    mnuModeHiSpeed,
    mnuModeBsc,
    mnuDispMain,
    mnuDisp,
    mnuSortMain,
    mnuSort,
    mnuOptMain,
    mnuOpt,
    mnuRefresh,
    mnuHelpMain,
    mnuHelp,
    mnuVer,
    mnuRightFile,
    mnuRightRefresh,
    mnuFileDispMain,
    mnuFileDisp,
    mnuSortIconMain,
    mnuSortIcon,
};

/// One menu, or one entry of an indexed menu. Separators are entries without a caption.
struct MenuItem {
    Menu menu = Menu::mnuFileMain;
    int index = 0;

    friend bool operator==(const MenuItem&, const MenuItem&) = default;
};

struct MenuCaption {
    MenuItem item;
    std::int32_t message = 0;
};

/// A tool button's tip, by the button's key. Those of the file commands and "Refresh" are plain
/// buttons, which are never left pressed.
struct ToolTip {
    std::string_view key;
    std::int32_t message = 0;
};

/// The caption of a frame or label, by the control's name and its index in a control array.
struct ControlCaption {
    std::string_view control;
    int index = 0;
    std::int32_t message = 0;
};

// Which message each caption of the main window is. The tables are in the window's order; a control
// that is not in them has no caption of its own.

std::span<const MenuCaption> menuCaptions();
std::span<const ToolTip> toolTips();
/// Column headers 1 to 3 of `lsvPC` and `lsvCtrl`.
std::span<const std::int32_t> columnMessages();

std::optional<std::int32_t> menuMessage(MenuItem item);
std::optional<std::int32_t> controlMessage(std::string_view control, int index = 0);

} // namespace vantrel
