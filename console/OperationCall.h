#pragma once

#include "console/Desk.h"

#include <string>
#include <vector>

namespace vantrel {

/// Why `call` cannot call this, with the operations that it can, or an empty text. `words` are the
/// operation's name and its arguments.
std::string callRefusal(const std::vector<std::string>& words, OverwritePolicy overwrite);

/// `call` on one machine: an operation of the session by its name, and a line of output for what
/// came of it. What it would replace is kept by the rule for files, although the session itself
/// would not ask about all of it.
class OperationCall {
  public:
    OperationCall(Desk& desk, const Target& target);

    void run();

  private:
    struct End {
        ItemEnd end = ItemEnd::Done;
        std::string reason{};
        std::vector<std::string> values{};
        int cause = exit_code::nothingDone;
    };

    /// False, with how it ended, when it must not be called.
    bool mayBegin(End& end);
    bool mayReplace(CommandKind kind) const;
    void call(End& end);
    void explainFailure(End& end) const;
    std::string keptReason() const;
    void report(const End& end) const;
    std::string text(std::int32_t number) const;

    Desk& desk_;
    MachineDesk machine_;
    const std::string robot_; ///< as it is before the call, which may change the mode
    const std::string name_;
    const std::vector<std::string> arguments_;
};

} // namespace vantrel
