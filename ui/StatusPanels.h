#pragma once

#include "base/ApplicationState.h"
#include "ui/MainWindowControls.h"

#include <array>
#include <functional>
#include <string>

class wxStatusBar;

namespace vantrel {

/// The panels of the status bar and the room that each has: PC, controller, notice, result.
class StatusPanels {
  public:
    /// The bar outlives it, as the window's children do.
    explicit StatusPanels(wxStatusBar& bar);
    StatusPanels(const StatusPanels&) = delete;
    StatusPanels& operator=(const StatusPanels&) = delete;

    void setPane(ActiveSide side, const std::string& text);
    /// Without a notice the result has its room.
    void setNotice(const std::string& text);
    void setResult(const std::string& text);

    std::function<void()> onResultClicked = [] {};

  private:
    void share();

    wxStatusBar& bar_;
    std::array<int, MainWindowControls::statusPanels> widths_{}; ///< as the toolkit takes them
};

} // namespace vantrel
