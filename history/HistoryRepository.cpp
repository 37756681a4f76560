#include "history/HistoryRepository.h"

#include "base/PathRules.h"
#include "history/HistoryTrees.h"
#include "history/StoredNames.h"
#include "platform/Files.h"

#include <cstddef>
#include <thread>
#include <utility>
#include <vector>

namespace vantrel {
namespace {

constexpr const char* branch = "refs/heads/main";
constexpr const char* repositoryName = ".git";

bool isEmptyOrBegun(const std::string& folder) {
    bool isEmpty = true;
    const auto looked = visitNames(
        folder, [&isEmpty](std::string_view name) { isEmpty = isEmpty && name == repositoryName; });
    return looked && isEmpty;
}

/// Makes a repository, or completes one whose making was cut off.
Result<GitRepository> made(const std::string& folder) {
    git_repository_init_options options = GIT_REPOSITORY_INIT_OPTIONS_INIT;
    options.flags = GIT_REPOSITORY_INIT_MKPATH;
    options.initial_head = "main";
    auto repository = gitMade<GitRepository>([&](git_repository** made) {
        return git_repository_init_ext(made, folder.c_str(), &options);
    });
    if (!repository)
        return repository;
    const auto configuration = gitMade<GitConfiguration>(
        [&](git_config** made) { return git_repository_config(made, repository->get()); });
    if (!configuration)
        return Failure{configuration.reason()};
    if (git_config_set_bool(configuration->get(), "core.autocrlf", 0) < 0 ||
        git_config_set_bool(configuration->get(), "core.filemode", 0) < 0)
        return gitFailure();
    return repository;
}

Result<GitRepository> openedAsItIs(const std::string& folder) {
    return gitMade<GitRepository>([&](git_repository** made) {
        return git_repository_open_ext(made, folder.c_str(), GIT_REPOSITORY_OPEN_NO_SEARCH,
                                       nullptr);
    });
}

/// With the folders above it.
Outcome makeFolder(const std::string& folder) {
    if (isFolder(folder))
        return Done{};
    const std::string above = PathRules().parent(folder);
    if (above != folder && !isFolder(above))
        if (auto made = makeFolder(above); !made)
            return made;
    auto made = createFolder(folder);
    return made || isFolder(folder) ? Outcome(Done{}) : std::move(made);
}

// Two programs that begin with it at once would each take what the other has half made for broken.
Result<GitRepository> opened(const std::string& folder) {
    // Looked at first: what another program makes meanwhile is a history.
    const bool mayBegin = !isFolder(folder) || isEmptyOrBegun(folder);
    auto repository = openedAsItIs(folder);
    if (repository)
        return repository;
    if (!mayBegin)
        return Failure{folder + ": " + repository.reason()};
    const std::string inside = PathRules().join(folder, repositoryName);
    if (const auto folders = makeFolder(inside); !folders)
        return Failure{folder + ": " + folders.reason()};
    const auto lock = lockForWriting(folder, std::chrono::seconds(10));
    if (!lock || !*lock)
        return Failure{folder + ": " + (lock ? repository.reason() : lock.reason())};
    repository = openedAsItIs(folder);
    return repository ? std::move(repository) : made(folder);
}

} // namespace

Result<HistoryRepository> HistoryRepository::open(const std::string& folder) {
    auto repository = opened(folder);
    if (!repository)
        return Failure{repository.reason()};
    return HistoryRepository(folder, std::move(*repository));
}

Result<std::optional<HeldFile>> lockForWriting(const std::string& folder,
                                               std::chrono::milliseconds patience) {
    constexpr std::chrono::milliseconds pause{50};
    const std::string path =
        PathRules().join(PathRules().join(folder, repositoryName), "vantrel.lock");
    auto lock = HeldFile::lock(path);
    for (auto waited = pause; lock && !*lock && waited <= patience; waited += pause) {
        std::this_thread::sleep_for(pause);
        lock = HeldFile::lock(path);
    }
    return lock;
}

std::string HistoryRepository::pathOf(std::string_view place) const {
    return PathRules().join(PathRules().join(folder_, repositoryName), place);
}

Result<std::optional<git_oid>> HistoryRepository::tip() const {
    git_oid id{};
    const int found = git_reference_name_to_id(&id, repository_.get(), branch);
    if (found == GIT_ENOTFOUND)
        return std::optional<git_oid>();
    return found < 0 ? Result<std::optional<git_oid>>(gitFailure()) : std::optional(id);
}

Result<GitTree> HistoryRepository::rootOf(const std::string& version) const {
    if (version.empty()) {
        const auto latest = tip();
        if (!latest)
            return Failure{latest.reason()};
        return *latest ? treeOf(repository_.get(), **latest) : Result<GitTree>(GitTree());
    }
    git_oid id{};
    if (git_oid_fromstr(&id, version.c_str()) < 0)
        return gitFailure();
    return treeOf(repository_.get(), id);
}

int HistoryRepository::tryMove(const git_oid& to, const std::optional<git_oid>& before) {
    GitReference moved;
    git_reference* made = nullptr;
    const int result =
        before ? git_reference_create_matching(&made, repository_.get(), branch, &to, 1, &*before,
                                               "snapshot")
               : git_reference_create(&made, repository_.get(), branch, &to, 0, "snapshot");
    moved.reset(made);
    return result;
}

// Git programs hold the branch for a moment only. This program's own lock keeps its other copies
// out, so a lock that stays is what a crash has left.
Outcome HistoryRepository::move(const git_oid& to, const std::optional<git_oid>& before,
                                std::chrono::milliseconds patience) {
    constexpr std::chrono::milliseconds pause{50};
    int result = tryMove(to, before);
    for (auto waited = pause; result == GIT_ELOCKED && waited <= patience; waited += pause) {
        std::this_thread::sleep_for(pause);
        result = tryMove(to, before);
    }
    if (result == GIT_ELOCKED) {
        if (const auto removed = removeFile(pathOf(std::string(branch) + ".lock")); !removed)
            return removed;
        result = tryMove(to, before);
    }
    return result < 0 ? Outcome(gitFailure()) : Outcome(Done{});
}

Result<GitTree> HistoryRepository::robotIn(const std::string& robot,
                                           const std::string& version) const {
    auto root = rootOf(version);
    if (!root || !*root)
        return root;
    return folderIn(repository_.get(), root->get(),
                    StoredPlaces(placesIn(root->get())).placeFor(robot));
}

Result<std::optional<std::string>>
HistoryRepository::versionBefore(const std::string& version) const {
    git_oid id{};
    if (git_oid_fromstr(&id, version.c_str()) < 0)
        return gitFailure();
    const auto commit = gitMade<GitCommit>(
        [&](git_commit** made) { return git_commit_lookup(made, repository_.get(), &id); });
    if (!commit)
        return Failure{commit.reason()};
    if (git_commit_parentcount(commit->get()) == 0)
        return std::optional<std::string>();
    return std::optional(hexadecimal(*git_commit_parent_id(commit->get(), 0)));
}

} // namespace vantrel
