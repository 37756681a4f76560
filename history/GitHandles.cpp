#include "history/GitHandles.h"

namespace vantrel {
namespace {

// What a user or an administrator has set for Git on this machine, such as changed line ends, is
// nothing for files that have to come back byte for byte. A share belongs to somebody else; nothing
// here runs a program that a repository names, so its owner does not matter.
// The settings belong to the process, so they are made once.
bool prepare() {
    git_libgit2_init();
    for (const git_config_level_t level : {GIT_CONFIG_LEVEL_PROGRAMDATA, GIT_CONFIG_LEVEL_SYSTEM,
                                           GIT_CONFIG_LEVEL_XDG, GIT_CONFIG_LEVEL_GLOBAL})
        git_libgit2_opts(GIT_OPT_SET_SEARCH_PATH, level, "");
    git_libgit2_opts(GIT_OPT_ENABLE_FSYNC_GITDIR, 1);
    git_libgit2_opts(GIT_OPT_SET_OWNER_VALIDATION, 0);
    constexpr size_t openPacks = 128; // a process may have some hundred files open
    git_libgit2_opts(GIT_OPT_SET_MWINDOW_FILE_LIMIT, openPacks);
    return true;
}

} // namespace

GitLibrary::GitLibrary() {
    [[maybe_unused]] static const bool isPrepared = prepare();
    git_libgit2_init();
}

} // namespace vantrel
