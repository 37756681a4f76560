#pragma once

#include "files/CommandResult.h"
#include "files/ListTransfer.h"
#include "files/TransferServices.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vantrel {

/// Modes of the list-file dialog: what its list is for.
namespace list_file_mode {
inline constexpr std::string_view saveJobs = "0";      ///< from the controller to the PC
inline constexpr std::string_view loadJobs = "1";      ///< from the PC to the controller
inline constexpr std::string_view saveVariables = "2"; ///< from the controller to the PC
inline constexpr std::string_view loadVariables = "3"; ///< from the PC to the controller
} // namespace list_file_mode

/// The list-file dialogs, as the commands that need a list see it.
class ListFileWindow {
  public:
    virtual ~ListFileWindow() = default;

    /// Shows it in one of the modes "0" to "3". True when the session has read the list file
    /// that was chosen; its name is then the state's `JobListFile` or `VarListFile`.
    virtual bool readList(std::string_view mode) = 0;

    /// The system's dialog for a new file, with a folder and a name to begin with: the path that
    /// the operator chose, an existing file's too, or nothing.
    virtual std::optional<std::string> askNewList(const std::string& folder,
                                                  const std::string& name) = 0;
};

/// The commands on list files. Those of the option menu transfer whole lists: the operator names a
/// list file, and the jobs or variables in it go to the controller or come from it. The window is
/// locked while one runs, and failures are reported here.
class ListTransferCommands {
  public:
    ListTransferCommands(const TransferServices& services, ListFileWindow& dialog)
        : with_(services), dialog_(dialog) {}

    void saveJobs();
    void loadJobs();
    void saveVariables();
    void loadVariables();

    /// The jobs selected in the active pane become a job list file.
    void saveSelection() const;

  private:
    using Transfer = CommandOutcome (ListTransferCommands::*)(ListTransfer&);

    void run(std::string_view mode, std::int32_t title, CommandKind kind, Transfer transfer);
    /// Tells the operator of a list without entries.
    bool holdsSomething(std::string_view mode) const;
    /// The progress is gone when this returns.
    CommandOutcome perform(std::int32_t title, CommandKind kind, Transfer transfer);
    CommandOutcome transferJobs(ListTransfer& list);
    CommandOutcome receiveVariables(ListTransfer& list);
    CommandOutcome sendVariables(ListTransfer& list);
    bool mayReplaceValues() const;
    /// Which variables of the list have been sent.
    void noteSent(bool succeeded) const;
    void noteAll(const std::vector<std::string>& entries, ItemEnd end,
                 const std::string& reason = {}) const;
    void showResult(bool cancelled) const;
    void reportEntry(const std::string& entry) const;
    /// The session's last failure, of an entry if it came to one.
    void reportFailure(const std::string& entry, const std::string& details) const;

    TransferServices with_;
    ListFileWindow& dialog_;
};

} // namespace vantrel
