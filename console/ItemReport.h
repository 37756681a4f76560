#pragma once

#include "console/Desk.h"
#include "files/CommandResult.h"

#include <cstdint>
#include <string>
#include <vector>

namespace vantrel {

/// The member of an object that says how something ended.
const char* endKey(ItemEnd end);

/// The output's lines for what became of each file or variable of a command on one machine.
class ItemReport {
  public:
    ItemReport(Desk& desk, MachineDesk& machine, CommandKind kind)
        : desk_(desk), machine_(machine), kind_(kind) {}

    /// `cause` is the exit code that says best why it was not done.
    void add(const ItemResult& item, int cause = exit_code::nothingDone);
    void addAll(const std::vector<std::string>& names, ItemEnd end, const std::string& reason = {},
                int cause = exit_code::nothingDone);
    /// What a command came to. A command ends at its first failure: what it has not tried is given
    /// back, without a line, where that is to be a command of its own.
    std::vector<std::string> addResult(const CommandResult& result,
                                       int cause = exit_code::nothingDone);

    /// False, after a line for each of these, where the controller's directory cannot be read.
    bool readController(const std::vector<std::string>& names);

  private:
    std::string shownReason(const ItemResult& item) const;
    std::string endWord(ItemEnd end) const;
    std::string text(std::int32_t number) const;

    Desk& desk_;
    MachineDesk& machine_;
    CommandKind kind_;
};

} // namespace vantrel
