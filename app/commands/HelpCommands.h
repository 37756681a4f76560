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

struct ProgramVersion {
    int major = 0;
    int minor = 0;
    int revision = 0;
};

/// This program's version, from the build.
ProgramVersion programVersion();

/// Major, a point, then minor and revision written one after the other: 1, 2, 3 gives "1.23". So
/// the version has been shown on every machine in the field; service staff compare it by eye.
std::string versionText(const ProgramVersion& version);

} // namespace vantrel
