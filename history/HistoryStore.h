#pragma once

#include "base/Result.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace vantrel {

/// A file as it came from a robot.
struct FetchedFile {
    std::string name;
    std::string path; ///< where its content lies
};

/// What a look at a robot has given.
struct RobotState {
    std::string robot;
    std::vector<FetchedFile> files{};
    std::vector<std::string> unfetched{}; ///< are on the robot; their last versions stay
    bool isDirectoryWhole = true;         ///< so that what is neither above nor here is gone
};

/// In which files a state differs from the one before; names as the robot has them, in byte order.
struct StateChanges {
    std::vector<std::string> changed{};
    std::vector<std::string> added{};
    std::vector<std::string> gone{};

    bool none() const { return changed.empty() && added.empty() && gone.empty(); }
    friend bool operator==(const StateChanges&, const StateChanges&) = default;
};

/// Who recorded something, and when.
struct HistorySignature {
    std::string name{};
    std::string mail{};
    std::int64_t time = 0; ///< seconds since 1970, UTC
    int offset = 0;        ///< of the local time, minutes

    friend bool operator==(const HistorySignature&, const HistorySignature&) = default;
};

/// A file that was fetched and could not be recorded.
struct NotStored {
    std::string name;
    std::string reason; ///< the system's; empty when its name is longer than a disk can hold
};

struct Recorded {
    enum class End {
        Committed,
        Unchanged, ///< nothing was different, and nothing was written
        InUse      ///< another program is writing this history just now
    };
    End end = End::Unchanged;
    std::string version{}; ///< of the new state
    StateChanges changes{};
    std::vector<NotStored> notStored{}; ///< their last versions stay
    /// Plain files of the folder that somebody has changed, and the names that they have now.
    std::vector<std::string> setAside{};
    /// Why the plain files beside the repository do not show the state; the next record tries
    /// again.
    std::string treeProblem{};
};

/// One entry of the history.
struct HistoryEntry {
    std::string version{};
    HistorySignature by{};
    std::string message{};
    std::vector<std::string> before{}; ///< versions: none for the first, two where lines met
};

/// Which entries to list; an empty text and a missing time let everything through.
struct HistoryFilter {
    std::string robot{};
    std::string file{}; ///< of that robot
    std::optional<std::int64_t> since{};
    std::optional<std::int64_t> until{};
    std::size_t most = 1000;
};

/// Every version of every file that was recorded, in a real Git repository: one folder for each
/// robot, one commit on the branch "main" for each state that differs from the last one, and beside
/// it the latest state as plain files. Contents are kept byte for byte. Whatever ends the program
/// while it writes, the last complete state stays, and no lock stays that needs a person.
class HistoryStore {
  public:
    /// Opens the history in this folder to read it; nothing is made.
    static Result<HistoryStore> open(const std::string& folder);
    /// The same, or a new one where there is no folder or an empty one. A folder with anything else
    /// in it is refused.
    static Result<HistoryStore> openOrMake(const std::string& folder);
    HistoryStore(HistoryStore&&) noexcept;
    HistoryStore& operator=(HistoryStore&&) noexcept;
    ~HistoryStore();

    /// `message` gives the entry's text for what has changed and what was not stored. No entry is
    /// made where nothing has changed.
    Result<Recorded> record(const RobotState& state, const HistorySignature& by,
                            const std::function<std::string(const Recorded&)>& message);

    /// The whole name of a version of which only the first digits are given, four at least.
    Result<std::string> version(const std::string& start) const;
    /// The latest first.
    Result<std::vector<HistoryEntry>> log(const HistoryFilter& filter) const;
    /// What the entry changed for this robot, beside the entry before it.
    Result<StateChanges> changes(const std::string& version, const std::string& robot) const;
    /// The robots that have files in this version, and the files of one; in byte order. The latest
    /// version where none is named.
    Result<std::vector<std::string>> robots(const std::string& version = {}) const;
    Result<std::vector<std::string>> files(const std::string& robot,
                                           const std::string& version = {}) const;
    /// A file's content in this version; nothing where it has no such file.
    Result<std::optional<std::string>> read(const std::string& robot, const std::string& file,
                                            const std::string& version = {}) const;

    /// How long another Git program may hold the branch before its lock is taken for one that a
    /// crash has left.
    std::chrono::milliseconds patience{3000};
    /// How long to wait for another program that is writing this history.
    std::chrono::milliseconds writerPatience{60000};

  private:
    struct Parts;
    explicit HistoryStore(std::unique_ptr<Parts> parts);
    static Result<HistoryStore> opened(const std::string& folder, bool mayMake);
    /// One attempt; nothing when another Git program has moved the branch meanwhile.
    Result<std::optional<Recorded>>
    recordOnce(const RobotState& state, const HistorySignature& by,
               const std::function<std::string(const Recorded&)>& message);
    void showFiles(Recorded& recorded);

    std::unique_ptr<Parts> parts_;
};

} // namespace vantrel
