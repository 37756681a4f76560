#pragma once

#include "base/ApplicationState.h"
#include "files/TransferServices.h"

#include <functional>
#include <string>
#include <vector>

namespace vantrel {

// Fixed texts in every language, with the spelling by which operators and their manuals know them.
inline constexpr const char* folderNotRead = "File Get Error!!";
inline constexpr const char* listNotShown = "File Dispaly Error!!";

/// Reads panes anew at the end of a command. The items that were selected when the object was made
/// and are still there are selected again.
class PaneRefresh {
  public:
    explicit PaneRefresh(const TransferServices& services);

    /// False, after a message, when the pane could not be brought up to date.
    bool refreshPC() const;
    bool refreshController() const;
    /// `controllerRead`, when given, is called between the two panes: what the controller has just
    /// shown may decide on what is left on the PC.
    void refreshTouched(const CommandOutcome& outcome,
                        const std::function<void()>& controllerRead = {}) const;

  private:
    void dropFromController(const std::vector<std::string>& names) const;
    bool fill(ActiveSide side, const std::vector<std::string>& selected) const;

    TransferServices with_;
    std::vector<std::string> selectedOnPC_;
    std::vector<std::string> selectedOnController_;
};

} // namespace vantrel
