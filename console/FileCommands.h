#pragma once

#include "console/Desk.h"
#include "console/ItemReport.h"
#include "files/CommandResult.h"

#include <cstdint>
#include <string>
#include <vector>

namespace vantrel {

/// `get`, `put` and `delete` on one machine: the commands of the window on the files that the names
/// of the request mean, and a line of output for what became of each.
class FileCommands {
  public:
    FileCommands(Desk& desk, const Target& target);

    void run();

  private:
    bool read();
    void perform(std::vector<std::string> names);
    bool performOnce(const std::vector<std::string>& names);
    void select(const std::vector<std::string>& names);
    std::string text(std::int32_t number) const;

    Desk& desk_;
    MachineDesk machine_;
    CommandKind kind_;
    ItemReport items_;
};

} // namespace vantrel
