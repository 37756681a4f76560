#pragma once

#include "link/TransferOutcome.h"

#include <string>

namespace vantrel {

class MessageTable;
class OperatorDialog;
struct SessionProperties;

/// The session's question whether something that is already there is to be overwritten.
class OverwriteQuestion {
  public:
    OverwriteQuestion(const SessionProperties& properties, const MessageTable& messages,
                      OperatorDialog& dialog)
        : properties_(properties), messages_(messages), dialog_(dialog) {}

    /// Cancelled at once while `DisplayMonitor` is off.
    TransferOutcome ask(const std::string& name) const;

  private:
    const SessionProperties& properties_;
    const MessageTable& messages_;
    OperatorDialog& dialog_;
};

} // namespace vantrel
