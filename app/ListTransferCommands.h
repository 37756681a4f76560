#pragma once

#include "files/TransferPermission.h"
#include "files/TransferServices.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace vantrel {

class CommandProgress;
class ListFileWindow;
struct CommandOutcome;

/// The entries of the option menu that transfer whole lists: the operator names a list file, and
/// the jobs or variables in it go to the controller or come from it. The window is locked while one
/// runs, and failures are reported here.
class ListTransferCommands {
  public:
    ListTransferCommands(const TransferServices& services, ListFileWindow& dialog)
        : with_(services), dialog_(dialog) {}

    void saveJobs();
    void loadJobs();
    void saveVariables();
    void loadVariables();

  private:
    using Transfer = CommandOutcome (ListTransferCommands::*)(const CommandProgress&);

    void run(std::string_view mode, std::int32_t title, Transfer transfer);
    /// Tells the operator of a list without entries.
    bool holdsSomething(std::string_view mode) const;
    CommandOutcome showProgress(std::int32_t title, Transfer transfer);
    CommandOutcome receiveJobs(const CommandProgress& progress);
    CommandOutcome sendJobs(const CommandProgress& progress);
    CommandOutcome receiveVariables(const CommandProgress& progress);
    CommandOutcome sendVariables(const CommandProgress& progress);
    /// False when the session was left alone, since nothing was to be transferred.
    bool transferJobs(Direction direction, const CommandProgress& progress);
    void keepPermitted(Direction direction);
    void reportEntry(const std::string& entry) const;
    void reportFailure(const std::string& details) const;

    TransferServices with_;
    ListFileWindow& dialog_;
};

} // namespace vantrel
