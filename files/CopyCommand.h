#pragma once

#include "files/ListTransfer.h"
#include "files/TransferServices.h"

#include <string>
#include <vector>

namespace vantrel {

/// What is asked for, and arrives, in place of a job when the `JBR` setting is on.
std::string nameOfRelatedJob(std::string name);

/// A copy through the session's job list: the session asks its own overwrite questions and stops at
/// the first failure of the library.
class CopyCommand {
  public:
    explicit CopyCommand(const TransferServices& services) : with_(services) {}

    CommandOutcome send(const std::vector<SelectedItem>& items);
    /// With the `JBR` setting on, ".JBR" files are asked for in place of ".JBI" jobs.
    CommandOutcome receive(std::vector<SelectedItem> items);

  private:
    CommandOutcome transfer(const std::vector<SelectedItem>& items, Direction direction);

    TransferServices with_;
};

} // namespace vantrel
