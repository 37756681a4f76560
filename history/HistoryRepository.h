#pragma once

#include "history/GitHandles.h"
#include "platform/HeldFile.h"

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace vantrel {

/// Keeps this program's other copies from writing to the history in this folder; nothing when one
/// of them does so all the time.
Result<std::optional<HeldFile>> lockForWriting(const std::string& folder,
                                               std::chrono::milliseconds patience);

/// The repository of a history, and its one branch.
class HistoryRepository {
  public:
    /// As `HistoryStore::open`.
    static Result<HistoryRepository> open(const std::string& folder);
    static Result<HistoryRepository> openOrMake(const std::string& folder);

    git_repository* get() const { return repository_.get(); }
    const std::string& folder() const { return folder_; }
    /// The path of a file of the repository itself.
    std::string pathOf(std::string_view place) const;

    /// What the branch points to; nothing before the first commit.
    Result<std::optional<git_oid>> tip() const;
    /// The tree of a version, of the latest where none is named; null before the first.
    Result<GitTree> rootOf(const std::string& version) const;
    /// The tree of a robot's folder in a version, the latest where none is named; null where it has
    /// none.
    Result<GitTree> robotIn(const std::string& robot, const std::string& version) const;
    /// Nothing before the first one. Where two lines met, that of the line which was here.
    Result<std::optional<std::string>> versionBefore(const std::string& version) const;
    /// Lets the branch point to a commit, provided that it still points to `before`. Another Git
    /// program's hold on it is respected for as long as `patience`.
    Outcome move(const git_oid& to, const std::optional<git_oid>& before,
                 std::chrono::milliseconds patience);

  private:
    HistoryRepository(std::string folder, GitRepository repository)
        : folder_(std::move(folder)), repository_(std::move(repository)) {}
    int tryMove(const git_oid& to, const std::optional<git_oid>& before);

    std::string folder_;
    GitRepository repository_;
};

} // namespace vantrel
