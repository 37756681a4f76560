#pragma once

#include "link/TransferTools.h"

#include <string>

namespace vantrel {

class MessageTable;
class OperatorTalk;
struct SessionProperties;

/// The question whether `name` is to be overwritten. With `storedAs`, a further line says that the
/// file becomes another job, so that what has its own name is deleted for it and not replaced.
std::string overwriteQuestion(const MessageTable& messages, const std::string& name,
                              const std::string& storedAs = {});

/// The session's question whether something that is already there is to be overwritten.
class OverwriteQuestion {
  public:
    OverwriteQuestion(const SessionProperties& properties, const MessageTable& messages,
                      OperatorTalk& talk)
        : properties_(properties), messages_(messages), talk_(talk) {}

    /// Cancelled at once while `DisplayMonitor` is off. `storedAs` as in `overwriteQuestion`.
    TransferOutcome ask(const std::string& name, const std::string& storedAs = {}) const;

  private:
    const SessionProperties& properties_;
    const MessageTable& messages_;
    OperatorTalk& talk_;
};

} // namespace vantrel
