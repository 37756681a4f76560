#pragma once

#include "base/Result.h"

#include <memory>
#include <string>

#include <git2.h>

namespace vantrel {

/// libgit2's objects, let go of by their own functions.
template <auto Free>
struct GitFree {
    template <typename Object>
    void operator()(Object* object) const {
        Free(object);
    }
};
template <typename Object, auto Free>
using GitHandle = std::unique_ptr<Object, GitFree<Free>>;

using GitRepository = GitHandle<git_repository, git_repository_free>;
using GitDatabase = GitHandle<git_odb, git_odb_free>;
using GitObject = GitHandle<git_odb_object, git_odb_object_free>;
using GitReference = GitHandle<git_reference, git_reference_free>;
using GitCommit = GitHandle<git_commit, git_commit_free>;
using GitTree = GitHandle<git_tree, git_tree_free>;
using GitBlob = GitHandle<git_blob, git_blob_free>;
using GitTreeBuilder = GitHandle<git_treebuilder, git_treebuilder_free>;
using GitPackBuilder = GitHandle<git_packbuilder, git_packbuilder_free>;
using GitSignature = GitHandle<git_signature, git_signature_free>;
using GitWalk = GitHandle<git_revwalk, git_revwalk_free>;
using GitDifference = GitHandle<git_diff, git_diff_free>;
using GitConfiguration = GitHandle<git_config, git_config_free>;
using GitIndex = GitHandle<git_index, git_index_free>;

/// What the library said last in this thread.
inline Failure gitFailure() {
    const git_error* const error = git_error_last();
    return Failure{error && error->message ? error->message : "libgit2"};
}

/// The object that `make(Object** made)` gives, or why there is none.
template <typename Handle, typename Make>
Result<Handle> gitMade(Make make) {
    typename Handle::pointer made = nullptr;
    if (make(&made) < 0)
        return gitFailure();
    return Handle(made);
}

/// The library works as long as one of these lives.
class GitLibrary {
  public:
    GitLibrary();
    ~GitLibrary() { git_libgit2_shutdown(); }
    GitLibrary(const GitLibrary&) = delete;
    GitLibrary& operator=(const GitLibrary&) = delete;
};

inline std::string hexadecimal(const git_oid& id) {
    std::string text(GIT_OID_HEXSZ, '\0');
    git_oid_fmt(text.data(), &id);
    return text;
}

} // namespace vantrel
