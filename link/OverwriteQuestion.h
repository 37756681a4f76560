#pragma once

#include "link/OperatorTalk.h"
#include "link/TransferTools.h"

#include <string>

namespace vantrel {

class MessageTable;
class ProgressPanel;
struct SessionProperties;

/// What a transfer is about to replace.
struct Overwrite {
    std::string name; ///< of what is there
    /// Where the file becomes another job: that one's name. What has the file's own name is then
    /// deleted for it and not replaced, which a further line of the question says.
    std::string storedAs;
    std::string pcFile;  ///< the file on the PC, which comes or goes; absolute
    bool isOnPC = false; ///< what is replaced
};

/// What the operator may want to know before the answer: size and date of the file on the PC, which
/// side loses its file, and of how many items this is which.
std::string overwriteFacts(const MessageTable& messages, const Overwrite& overwrite,
                           const ProgressPanel& progress);

/// Asks whether to replace it, with these facts below the question.
Answer askOverwrite(OperatorTalk& talk, const MessageTable& messages, const std::string& title,
                    const Overwrite& overwrite);

/// The session's question whether something that is already there is to be overwritten.
class OverwriteQuestion {
  public:
    OverwriteQuestion(const SessionProperties& properties, const MessageTable& messages,
                      OperatorTalk& talk)
        : properties_(properties), messages_(messages), talk_(talk) {}

    /// Cancelled at once while `DisplayMonitor` is off.
    TransferOutcome ask(const Overwrite& overwrite) const;

  private:
    const SessionProperties& properties_;
    const MessageTable& messages_;
    OperatorTalk& talk_;
};

} // namespace vantrel
