#pragma once

#include "files/CommandResult.h"

#include <optional>
#include <string>
#include <vector>

namespace vantrel {

class FilePrinter;
class MainCommands;
struct MainServices;

/// What the operator can do with the result of the last command.
class ResultCommands {
  public:
    /// All of them outlive it.
    ResultCommands(const MainServices& services, const ResultLog& results, MainCommands& commands);

    /// The last command that has ended, if any has.
    const std::optional<CommandResult>& last() const { return results_.last(); }
    /// The whole result as a text: what it came to, where, and a line for each file.
    std::string text() const;
    /// Writes that text into a file that every editor shows as it is; a failure is told.
    void save(const std::string& path) const;
    /// Prints it; a failure is told.
    void print() const;

    /// Whether something is left to be tried again, under the same settings between the same folder
    /// and the same robot: a command of another machine is never repeated here.
    bool canTryAgain() const;
    /// Selects what failed and what was not reached and runs the same command with it. A row that
    /// its list does not show is named, and nothing is done.
    void tryAgain();

  private:
    std::optional<std::string> firstMissing(ActiveSide side,
                                            const std::vector<std::string>& names) const;

    const MainServices& with_;
    const ResultLog& results_;
    MainCommands& commands_;
};

} // namespace vantrel
