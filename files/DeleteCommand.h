#pragma once

#include "base/ApplicationState.h"
#include "files/CommandScopes.h"
#include "files/TransferServices.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace vantrel {

/// The deletion of selected items, each asked for until the operator answers All. A failure is
/// reported and the next file follows. Made for one command.
class DeleteCommand {
  public:
    DeleteCommand(const TransferServices& services, ActiveSide side);

    CommandOutcome run(const std::vector<SelectedItem>& items);

  private:
    /// False when the command ends with this file.
    using Deletion = std::function<bool(const std::string& name)>;

    CommandOutcome onController(const std::vector<SelectedItem>& items);
    CommandOutcome onPC(const std::vector<SelectedItem>& items);
    void each(const std::vector<SelectedItem>& items, std::int32_t question,
              const Deletion& deletion);
    bool isWanted(const std::string& name, std::int32_t question);
    std::string questionText(const std::string& name, std::int32_t question) const;
    bool deleteOnController(const std::string& name);
    void deleteOnPC(const std::string& name);

    TransferServices with_;
    ActiveSide side_;
    std::string title_;
    CommandProgress progress_;
    CommandOutcome outcome_;
    bool deleteAll_ = false;
};

} // namespace vantrel
