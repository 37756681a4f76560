#pragma once

#include "app/lists/ListTransferCommands.h"
#include "console/Desk.h"
#include "console/ItemReport.h"
#include "files/CommandResult.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vantrel {

/// The commands on list files on one machine: the window's list transfers with the list file of the
/// request, and a line of output for what became of each of its entries.
class ListCommands : private ListFileWindow {
  public:
    ListCommands(Desk& desk, const Target& target);

    void run();

  private:
    bool readList(std::string_view mode) override;
    std::optional<std::string> askNewList(const std::string&, const std::string&) override {
        return std::nullopt;
    }

    bool readFile();
    /// Of a list that is sent; those that are missing are reported.
    bool leaveOutMissing(const std::vector<std::string>& all);
    void runJobs();
    void rehearseJobs();
    void rehearseVariables();
    void noteReceived(bool isRead, const std::vector<std::string>& before);
    void perform();
    std::string text(std::int32_t number) const;

    Desk& desk_;
    MachineDesk machine_;
    CommandKind kind_;
    ItemReport items_;
    ListTransferCommands commands_;
    std::vector<std::string> entries_; ///< that are still to be transferred
};

} // namespace vantrel
