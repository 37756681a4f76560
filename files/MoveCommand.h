#pragma once

#include "files/CommandScopes.h"
#include "files/TransferPermission.h"
#include "files/TransferServices.h"
#include "link/JobNameSet.h"

#include <string>
#include <vector>

namespace vantrel {

enum class Answer;
class SentSources;

/// A move, file by file: each source goes once its copy has arrived. Whether a fetched file has is
/// looked at by the session; a sent one is known only from the next reading of the directory. The
/// session works silently and the questions are asked here; a failure of one file is reported and
/// the next one follows. Made for one command.
class MoveCommand {
  public:
    explicit MoveCommand(const TransferServices& services);
    /// Sends; the sources that go are left to `sent`.
    MoveCommand(const TransferServices& services, SentSources& sent);

    CommandOutcome run(const std::vector<SelectedItem>& items);

  private:
    MoveCommand(const TransferServices& services, Direction direction, SentSources* sent);

    enum class Arrival { Arrived, NotArrived, EndOfCommand };

    std::vector<std::string> movable(const std::vector<SelectedItem>& items) const;
    /// False when the command ends with this file.
    bool move(const std::string& name);
    Arrival transfer(const std::string& name);
    /// Whether the file would go over a data file that this very command has sent.
    bool goesOverOwn(const std::string& name) const;
    /// What the operator has agreed to for one file.
    struct Agreed {
        std::vector<std::string> jobs;
        std::string storedAs; ///< the other name that he was told, if any
    };
    /// Asks for whatever the session has found in the way, by its name, but for what the operator
    /// has agreed to before.
    Arrival askAndTransfer(const std::string& name, Agreed agreed = {});
    /// `Arrived` when all of these may be overwritten.
    Arrival askFor(const std::string& file, const std::vector<std::string>& jobs);
    /// With the operator's leave for what he has agreed to, and for nothing else.
    Arrival transferOver(const std::string& name, const Agreed& agreed);
    bool callSession(const std::string& name, bool overwrite);
    bool existsAlready() const;
    bool somethingElseIsInTheWay() const;
    Answer askOverwrite(const std::string& file, const std::string& job) const;
    /// The name under which the file ends up at its destination.
    std::string arrivalName(const std::string& name) const;
    /// Whether this very command has brought something there that goes by this name.
    bool hasArrived(const std::string& name) const;
    Arrival failed(const std::string& name);
    /// Notes what the session's last call has come to beside its result.
    void noteEffects(const std::string& name, bool sent);
    void tellUnreplaced() const;
    bool removeFromController(const std::string& name);
    void noteTouched();

    TransferServices with_;
    Direction direction_;
    SentSources* sent_; ///< of a send, else null
    std::string title_;
    CommandProgress progress_;
    CommandOutcome outcome_;
    bool overwriteAll_ = false;
    std::vector<std::string> unreplaced_; ///< jobs deleted for files that were sent
    std::vector<bool> transferred_;       ///< of the files handled, by their place in the list
    JobNameSet arrived_;                  ///< what this command has brought to the destination
};

} // namespace vantrel
