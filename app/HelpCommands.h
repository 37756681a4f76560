#pragma once

#include "base/Result.h"

#include <functional>
#include <string>

namespace vantrel {

struct ApplicationState;

/// The documents of the help menu. They lie in a folder beside the program's own.
class HelpCommands {
  public:
    /// Opens a document with the program that the system has for it.
    using Opener = std::function<Outcome(const std::string& path)>;

    HelpCommands(const ApplicationState& state, std::string programFolder, Opener open);

    /// Entry 0 opens the manual; no other names a document. A document that cannot be opened is
    /// not reported.
    void mnuHelp(int index) const;

  private:
    const ApplicationState& state_;
    std::string programFolder_;
    Opener open_;
};

} // namespace vantrel
