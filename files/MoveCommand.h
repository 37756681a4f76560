#pragma once

#include "files/CommandOutcome.h"
#include "files/CommandScopes.h"
#include "files/PermissionTests.h"
#include "files/TransferServices.h"
#include "link/JobNameSet.h"

#include <string>
#include <vector>

namespace vantrel {

enum class Answer;

/// A move, file by file: each source goes once its copy has arrived, which the session vouches for.
/// The session works silently and the questions are asked here; a failure of one file is reported
/// and the next one follows. Made for one command.
class MoveCommand {
  public:
    MoveCommand(const TransferServices& services, Direction direction);

    CommandOutcome run(const std::vector<SelectedItem>& items);

  private:
    enum class Arrival { Arrived, NotArrived, EndOfCommand };

    std::vector<std::string> movable(const std::vector<SelectedItem>& items) const;
    /// False when the command ends with this file.
    bool move(const std::string& name);
    Arrival transfer(const std::string& name);
    /// Asks for whatever the session has found in the way, by its name, but for what the operator
    /// was `asked` about before.
    Arrival askAndTransfer(const std::string& name, std::vector<std::string> asked = {});
    /// `Arrived` when all of these may be overwritten.
    Arrival askFor(const std::vector<std::string>& jobs);
    /// With the operator's leave for what he was `asked` about, and for nothing else.
    Arrival transferOver(const std::string& name, const std::vector<std::string>& asked);
    bool callSession(const std::string& name, bool overwrite);
    bool existsAlready() const;
    bool somethingElseIsInTheWay() const;
    Answer askOverwrite(const std::string& name) const;
    /// The name under which the file ends up at its destination.
    std::string arrivalName(const std::string& name) const;
    /// Whether this very command has brought something there that goes by this name.
    bool hasArrived(const std::string& name) const;
    Arrival failed(const std::string& name);
    void removeFromPC(const std::string& name);
    bool removeFromController(const std::string& name);
    void touchBothSides();

    TransferServices with_;
    Direction direction_;
    std::string title_;
    CommandProgress progress_;
    CommandOutcome outcome_;
    bool overwriteAll_ = false;
    JobNameSet arrived_; ///< what this command has brought to the destination
};

} // namespace vantrel
