#pragma once

#include "base/ApplicationState.h"
#include "files/CommandResult.h"
#include "files/TransferServices.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace vantrel {

struct CommandOutcome;
struct SelectedItem;

/// The commands on the selected items of a pane. Each locks the window while it runs, reports its
/// failures itself, refreshes what it changed, keeps the selection by name, or of it what failed
/// and what was not reached, shows what it came to in the status bar and returns true when nothing
/// failed. An item that was passed over with a message is no failure; a command that the
/// operator cancelled returns false.
class TransferCommands {
  public:
    explicit TransferCommands(const TransferServices& services) : with_(services) {}

    /// Selected PC files into the controller, through the session's job list.
    bool sendCopy();
    /// Selected controller files into the PC folder, through the session's job list.
    bool receiveCopy();
    /// File by file; each PC file is deleted once the controller's directory shows that it arrived.
    bool sendMove();
    /// File by file; each controller job is deleted once its file is in the PC folder.
    bool receiveMove();
    bool deleteOnController();
    /// Files only; a folder is never deleted.
    bool deleteOnPC();
    /// Files from elsewhere on the PC, by absolute paths, into the PC folder. Those that came are
    /// selected afterwards.
    bool copyIntoFolder(const std::vector<std::string>& paths);
    /// What the viewer shows of a controller's file; see `peekAtController`.
    std::optional<std::string> peek(const std::string& name);

    /// Reads one pane's content anew and shows it.
    bool refresh(ActiveSide side);

  private:
    using Items = std::vector<SelectedItem>;
    using Work = std::function<CommandOutcome(const Items& items)>;

    /// `controllerRead`, when given, is called as by `PaneRefresh::refreshTouched`.
    bool run(CommandKind kind, const Work& work, const std::function<void()>& controllerRead = {});
    void beginResult(CommandKind kind, const Items& items);
    /// What was not done is all that stays selected.
    void showResult(bool cancelled);

    TransferServices with_;
};

} // namespace vantrel
