#pragma once

#include "history/GitHandles.h"
#include "history/HistoryStore.h"
#include "history/StoredNames.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace vantrel {

/// Makes one commit: what is new in it goes to the disk as one pack, all or nothing, and only then
/// anything can point to it. One object serves one commit.
class SnapshotWriter {
  public:
    /// `tip` is what the new commit follows; nothing for the first one.
    static Result<SnapshotWriter> begin(const std::string& folder,
                                        const std::optional<git_oid>& tip);

    /// Compares the state with the last one, and keeps in memory what differs.
    Outcome take(const RobotState& state);
    const StateChanges& changes() const { return changes_; }
    const std::vector<NotStored>& notStored() const { return notStored_; }
    /// Writes the commit; it is on the disk afterwards, and nothing points to it yet.
    Result<git_oid> write(const HistorySignature& by, const std::string& message);
    git_repository* repository() const { return repository_.get(); }

  private:
    SnapshotWriter(GitRepository repository, GitDatabase database, std::optional<git_oid> tip)
        : repository_(std::move(repository)), database_(std::move(database)), tip_(tip) {}
    Outcome openLast(const std::string& robot);
    Outcome openFolder();
    Outcome takeFile(const FetchedFile& file);
    Outcome takeGone(const RobotState& state);
    Result<git_oid> writeRoot();
    Result<git_oid> writeCommit(const git_oid& root, const HistorySignature& by,
                                const std::string& message);
    Outcome writePack();

    GitRepository repository_;
    GitDatabase database_;
    std::optional<git_oid> tip_;
    GitTree lastRoot_{};         ///< none for the first commit
    GitTreeBuilder robotTree_{}; ///< the last state, and what has changed since
    std::string robotPlace_{};
    std::map<std::string, git_oid> last_{}; ///< by place
    std::optional<StoredPlaces> places_{};
    std::vector<git_oid> fresh_{}; ///< objects that the history does not have yet
    StateChanges changes_{};
    std::vector<NotStored> notStored_{};
};

} // namespace vantrel
