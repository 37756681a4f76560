#pragma once

#include "history/GitHandles.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace vantrel {

/// The latest state as plain files beside the repository, for people to look at. Nothing is ever
/// read from it. Files that somebody has put there stay; one that a later state changes is
/// replaced.
class WorkingTree {
  public:
    /// `folder` is the history's.
    WorkingTree(git_repository* repository, std::string folder)
        : repository_(repository), folder_(std::move(folder)) {}

    /// Brings the files from the state that they show to this commit's, whatever ended the last
    /// attempt. The first failure ends it; the next attempt does it all again.
    Outcome show(const git_oid& commit);
    /// The files that got another name, with it.
    const std::vector<std::string>& setAside() const { return setAside_; }

  private:
    Result<std::optional<git_oid>> shown() const;
    Outcome apply(git_diff* difference, bool removals);
    Outcome apply(const git_diff_delta& delta);
    /// Makes room under a name; fails where that cannot be done without a loss.
    Outcome clear(const std::string& place);
    bool isKnown(const std::string& content) const;
    Outcome write(const std::string& place, const git_oid& blob);
    Outcome remove(const std::string& place);
    /// For `git status` and its like.
    Outcome writeIndex(git_tree* tree);
    std::string pathOf(const std::string& place) const;

    git_repository* repository_;
    std::string folder_;
    std::vector<std::string> setAside_{};
};

} // namespace vantrel
