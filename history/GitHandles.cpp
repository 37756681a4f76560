#include "history/GitHandles.h"

namespace vantrel {

// What a user or an administrator has set for Git on this machine, such as changed line ends, is
// nothing for files that have to come back byte for byte. A share belongs to somebody else; nothing
// here runs a program that a repository names, so its owner does not matter.
GitLibrary::GitLibrary() {
    git_libgit2_init();
    for (const git_config_level_t level : {GIT_CONFIG_LEVEL_PROGRAMDATA, GIT_CONFIG_LEVEL_SYSTEM,
                                           GIT_CONFIG_LEVEL_XDG, GIT_CONFIG_LEVEL_GLOBAL})
        git_libgit2_opts(GIT_OPT_SET_SEARCH_PATH, level, "");
    git_libgit2_opts(GIT_OPT_ENABLE_FSYNC_GITDIR, 1);
    git_libgit2_opts(GIT_OPT_SET_OWNER_VALIDATION, 0);
}

} // namespace vantrel
