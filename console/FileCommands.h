#pragma once

#include "console/Desk.h"
#include "files/CommandResult.h"
#include "link/JobNameSet.h"

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
    void perform(const std::vector<std::string>& names);
    bool performOnce(const std::vector<std::string>& names);
    void plan(const std::vector<std::string>& names);
    /// Without those that would be replaced unasked.
    std::vector<std::string> withoutKept(const std::vector<std::string>& names);
    bool mayReplace(const std::string& name);
    bool isAtDestination(const std::string& name) const;
    void select(const std::vector<std::string>& names);

    void reportAll(const std::vector<std::string>& names, ItemEnd end, const std::string& reason,
                   int cause);
    void report(const ItemResult& item, int cause);
    std::string shownReason(const ItemResult& item) const;
    std::string endWord(ItemEnd end) const;
    std::string text(std::int32_t number) const;

    Desk& desk_;
    MachineDesk machine_;
    CommandKind kind_;
    JobNameSet controller_; ///< the directory's names
};

} // namespace vantrel
