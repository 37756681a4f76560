#pragma once

#include "lang/Captions.h"

#include <functional>
#include <memory>
#include <vector>

class wxFrame;
class wxMenu;
class wxMenuBar;
class wxMenuItem;
class wxWindow;
struct wxPoint;

namespace vantrel {

struct CommandStates;
class MenuBarEntry;
class MessageTable;

/// The menu bar and the pane pop-up menu, built from one table, captions and states applied by the
/// names of the entries.
class MainMenus {
  public:
    explicit MainMenus(wxFrame& window);
    ~MainMenus();

    void applyCaptions(const MessageTable& messages);
    void applyStates(const CommandStates& states);
    /// Shows `mnuRightClick`; returns when it was closed.
    void popUp(wxWindow& owner, const wxPoint& screenPosition);

    /// Called with the entry that was chosen.
    std::function<void(MenuItem)> onChosen;

    /// The control identifier of an entry.
    static int idOf(MenuItem item);
    wxMenuItem* find(MenuItem item) const;

  private:
    struct TopMenu {
        MenuItem item;
        wxMenu* menu;
    };

    void buildBar();
    void buildCommands();
    void buildPopUp();
    void setState(MenuItem item, bool enabled, bool checked);

    wxFrame& window_;
    wxMenuBar* bar_;
    std::unique_ptr<wxMenu> popUp_;
    std::vector<TopMenu> tops_;
    std::unique_ptr<MenuBarEntry> refresh_; ///< `mnuRefresh`, a command among the menus
};

} // namespace vantrel
