#pragma once

#include "files/CommandScopes.h"
#include "files/TransferPermission.h"
#include "files/TransferServices.h"
#include "link/TransferTools.h"

#include <string>
#include <vector>

namespace vantrel {

/// A transfer of the session's lists: the session shows its progress, under the command's title, in
/// the window that is on the screen as long as this lives.
class ListTransfer {
  public:
    ListTransfer(const TransferServices& services, const std::string& title, Direction direction);

    /// Makes the job list of the items that may be transferred; each that may not is named in a box
    /// of its own. False when nothing is left or the operator has cancelled.
    bool take(const std::vector<SelectedItem>& items);
    bool isCancelled() const { return progress_.isCancelled(); }

    /// Transfers the job list, and notes what became of each of its entries.
    bool run();

    /// What a transfer that was run has touched.
    CommandOutcome outcome(bool succeeded) const;

  private:
    void noteEnds() const;
    std::string reasonOf(EntryEnd end, std::int32_t index) const;

    TransferServices with_;
    Direction direction_;
    CommandProgress progress_;
};

} // namespace vantrel
