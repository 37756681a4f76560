#pragma once

#include "app/commands/Commands.h"

#include <functional>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

class wxFrame;
class wxMenu;
class wxMenuBar;
class wxMenuItem;
class wxWindow;
struct wxPoint;

namespace vantrel {

class MenuBarEntry;
class MessageTable;

/// The menu bar and the pop-up menus, made from the table of commands.
class MainMenus {
  public:
    /// The table outlives the menus.
    MainMenus(wxFrame& window, std::span<const CommandRow> table);
    ~MainMenus();

    void applyCaptions(const MessageTable& messages);
    void applyStates(const CommandInput& input);
    /// Shows `mnuRightClick` or `mnuRobot`; returns when it was closed.
    void popUp(CommandPlace place, wxWindow& owner, const wxPoint& screenPosition);

    /// Called with the command whose entry was chosen, and the menu.
    std::function<void(const CommandRow&, CommandPlace)> onChosen;

    /// The control identifier of an entry by its name; `wxID_NONE` when there is no such entry.
    int idOf(std::string_view name) const;
    /// Null for a command that stands in the menu bar itself.
    wxMenuItem* find(std::string_view name) const;

  private:
    struct Entry {
        const CommandRow* command;
        CommandOffer offer;
        wxMenuItem* item; ///< null in the menu bar itself
    };

    void buildBar();
    void buildPopUp();
    void buildBarEntries();
    void append(wxMenu& menu, CommandPlace place);
    void chosen(int number);

    wxFrame& window_;
    std::span<const CommandRow> table_;
    wxMenuBar* bar_;
    std::unique_ptr<wxMenu> popUp_;
    std::unique_ptr<wxMenu> robotPopUp_;
    std::vector<wxMenuItem*> popUpHeads_; ///< in their order
    std::vector<Entry> entries_;
    std::vector<std::unique_ptr<MenuBarEntry>> barEntries_; ///< of the entries without an item
};

} // namespace vantrel
