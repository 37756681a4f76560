#pragma once

#include "base/ApplicationState.h"

#include <cstddef>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace vantrel {

class MessageTable;

/// The commands that work on several files.
enum class CommandKind {
    SendCopy,
    SendMove,
    ReceiveCopy,
    ReceiveMove,
    DeleteOnController,
    DeleteOnPC,
    LoadJobs,
    SaveJobs,
    LoadVariables,
    SaveVariables,
    CopyIntoFolder, ///< from elsewhere on the PC
};

/// How a command ended for one of its files.
enum class ItemEnd { NotTried, Done, Skipped, Failed };

struct ItemResult {
    std::string row;  ///< as the pane or the list file has it
    std::string name; ///< that was transferred for it
    ItemEnd end = ItemEnd::NotTried;
    std::string reason{}; ///< in words; of a file that is done, what was left over
};

/// What a command came to.
struct CommandResult {
    CommandKind kind = CommandKind::SendCopy;
    std::string place{};  ///< the line that says where it went, empty for the PC
    std::string folder{}; ///< on the PC
    bool JBR = false;     ///< the setting under which it ran
    std::vector<ItemResult> items{};
    bool cancelled = false;

    std::size_t count(ItemEnd end) const;
    /// The rows of what the operator may want to try again: what failed and what was not reached.
    std::vector<std::string> openRows() const;
};

/// "5 sent, 1 skipped, 0 failed, cancelled", in the language in force.
std::string resultLine(const MessageTable& messages, const CommandResult& result);
/// "sent", "skipped", ... of one file.
std::string endText(const MessageTable& messages, const CommandResult& result, ItemEnd end);

/// Where the rows of a command stand.
ActiveSide sourceOf(CommandKind kind);
/// The line that says where it goes or comes from: the controller, or nothing.
std::string placeOf(CommandKind kind, const ApplicationState& state);

/// Writes down what becomes of each file of the command that runs, by its name: whoever settles a
/// file's fate tells it here.
class ResultLog {
  public:
    void begin(CommandKind kind, std::string place, std::string folder,
               const std::vector<std::string>& rows, bool JBR = false);
    /// Another name is transferred for a row.
    void rename(std::size_t item, const std::string& name);
    /// Of several files of one name, which a list may have, they are told in its order. Of a file
    /// that is done, "skipped" only adds the reason why something of it stayed. A name that is none
    /// of the command's is passed over.
    void note(const std::string& name, ItemEnd end, const std::string& reason = {});
    /// Why nothing could be tried any more.
    void noteUntried(const std::string& reason);
    void end(bool cancelled);

    /// The last command that has ended, if any has.
    const std::optional<CommandResult>& last() const { return last_; }

  private:
    ItemResult* itemFor(const std::string& name, ItemEnd end);

    std::optional<CommandResult> running_;
    /// In its items, by name.
    std::unordered_map<std::string, std::vector<std::size_t>> places_;
    std::optional<CommandResult> last_;
};

} // namespace vantrel
