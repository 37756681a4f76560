#pragma once

#include "files/TransferServices.h"
#include "history/HistoryStore.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace vantrel {

/// A file that the robot has and that could not be fetched.
struct UnreadFile {
    std::string name;
    std::string reason; ///< in words, in the language in force
};

/// What one look at a robot came to.
struct SnapshotResult {
    Recorded recorded{};
    std::vector<UnreadFile> unread{};
    std::size_t fetched = 0;

    bool isWhole() const { return unread.empty() && recorded.notStored.empty(); }
};

/// Puts the state of the robot in force into the history: every file of its directory, read last,
/// that its model and the file table let through is fetched into a folder of its own, which goes
/// again, and recorded. A file that could not be fetched keeps its last version there, and the
/// entry says so. No file of the operator's is touched, and nothing is asked.
class RobotSnapshot {
  public:
    /// `robot` is its name in the history.
    RobotSnapshot(const TransferServices& services, HistoryStore& history, std::string robot)
        : with_(services), history_(history), robot_(std::move(robot)) {}

    /// Fails, with the reason, where nothing could be recorded; after a press of Cancel nothing is.
    Result<SnapshotResult> take();

  private:
    /// The names to fetch, in the directory's order; those that nobody can fetch for certain are
    /// unread.
    std::vector<std::string> namesToFetch(RobotState& state);
    /// False when Cancel was pressed. A file that fails leaves the rest a try, a link that fails
    /// does not.
    bool fetch(std::vector<std::string> names, const std::string& folder, RobotState& state);
    bool goesOnAfterFailure() const;
    void leaveOut(const std::string& name, const std::string& reason);
    /// A data file that some robots of the model have, and that this one never had, is none.
    void dropNeverSeen();
    std::string message(const Recorded& entry) const;
    std::string trailers(bool isWhole) const;

    TransferServices with_;
    HistoryStore& history_;
    std::string robot_;
    SnapshotResult result_{};
};

/// This moment, this user, this PC.
HistorySignature signatureOfNow();

} // namespace vantrel
