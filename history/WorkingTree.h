#pragma once

#include "history/GitHandles.h"

#include <string>
#include <utility>

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

  private:
    Result<GitTree> shownTree() const;
    Outcome apply(const git_diff_delta& delta);
    Outcome write(const std::string& place, const git_oid& blob);
    Outcome remove(const std::string& place);
    /// For `git status` and its like.
    Outcome writeIndex(git_tree* tree);
    std::string pathOf(const std::string& place) const;

    git_repository* repository_;
    std::string folder_;
};

} // namespace vantrel
