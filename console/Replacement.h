#pragma once

#include "console/Desk.h"
#include "console/ItemReport.h"
#include "files/CommandResult.h"
#include "link/JobNameSet.h"

#include <string>
#include <vector>

namespace vantrel {

/// What a transfer would replace on the other side, and whether it may.
class Replacement {
  public:
    /// By the controller's directory that was read last; a transfer to the PC needs none.
    Replacement(Desk& desk, CommandKind kind);

    /// As the session finds out what a file would replace: a job by the file's name and by the one
    /// that it has inside.
    bool isThere(const std::string& name) const;
    /// Whether a file that is there may be replaced. Asks where that is wished.
    bool mayReplace(const std::string& name);
    /// Without those that the controller would replace without a word; they are reported. The
    /// session itself asks about jobs, and about all that comes.
    std::vector<std::string> withoutKept(const std::vector<std::string>& names, ItemReport& items);
    /// What would become of them: what the commands look at before they touch anything, and no
    /// more.
    void rehearse(MachineDesk& machine, const std::vector<std::string>& names,
                  ItemReport& items) const;

  private:
    bool isSend() const { return sourceOf(kind_) == ActiveSide::PC; }

    Desk& desk_;
    CommandKind kind_;
    JobNameSet controller_; ///< the directory's names
    bool toAll_ = false;    ///< the answer was All
};

} // namespace vantrel
