#pragma once

#include "base/ApplicationState.h"
#include "files/CommandOutcome.h"
#include "files/TransferServices.h"

#include <string>
#include <vector>

namespace vantrel {

/// Reads panes anew at the end of a command. The items that were selected when the object was made
/// and are still there are selected again.
class PaneRefresh {
  public:
    explicit PaneRefresh(const TransferServices& services);

    /// False, after a message, when the pane could not be brought up to date.
    bool refreshPC() const;
    bool refreshController() const;
    void refreshTouched(const CommandOutcome& outcome) const;

  private:
    bool fill(ActiveSide side, const std::vector<std::string>& selected) const;

    TransferServices with_;
    std::vector<std::string> selectedOnPC_;
    std::vector<std::string> selectedOnController_;
};

} // namespace vantrel
