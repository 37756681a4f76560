#include "history/HistoryRepository.h"

#include "base/PathRules.h"
#include "history/HistoryTrees.h"
#include "history/StoredNames.h"
#include "platform/Files.h"
#include "platform/Links.h"

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

/// Files come back as they were, whatever anybody sets for himself.
Outcome setUp(git_repository* repository) {
    const auto configuration = gitMade<GitConfiguration>(
        [&](git_config** made) { return git_repository_config(made, repository); });
    if (!configuration)
        return Failure{configuration.reason()};
    for (const char* const key : {"core.autocrlf", "core.filemode"}) {
        int isOn = 1;
        const bool isOff = git_config_get_bool(&isOn, configuration->get(), key) == 0 && isOn == 0;
        if (!isOff && git_config_set_bool(configuration->get(), key, 0) < 0)
            return gitFailure();
    }
    return Done{};
}

/// A power cut can leave HEAD without its content.
Outcome mendHead(const std::string& inside) {
    const std::string head = PathRules().join(inside, "HEAD");
    const auto content = readFile(head);
    const bool isWhole =
        content && content->find_first_not_of(std::string("\0\r\n ", 4)) != std::string::npos;
    return isWhole ? Outcome(Done{}) : replaceFile(head, std::string("ref: ") + branch + "\n");
}

/// What a program that ended while it made the repository has left locked.
void removeLeftovers(const std::string& inside) {
    for (const char* const name : {"config.lock", "HEAD.lock"})
        if (isRegularFile(PathRules().join(inside, name)))
            static_cast<void>(removeFile(PathRules().join(inside, name)));
}

Result<GitRepository> made(const std::string& folder) {
    git_repository_init_options options = GIT_REPOSITORY_INIT_OPTIONS_INIT;
    options.flags = GIT_REPOSITORY_INIT_MKPATH;
    options.initial_head = "main";
    return gitMade<GitRepository>([&](git_repository** made) {
        return git_repository_init_ext(made, folder.c_str(), &options);
    });
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
Result<GitRepository> openedOrMade(const std::string& folder) {
    // Looked at first: what another program makes meanwhile is a history.
    const bool mayBegin = !isFolder(folder) || isEmptyOrBegun(folder);
    const std::string inside = PathRules().join(folder, repositoryName);
    const auto refused = [&folder](const std::string& reason) {
        return Failure{folder + ": " + reason};
    };
    auto repository = openedAsItIs(folder);
    if (!repository && !mayBegin)
        return refused(repository.reason());
    if (isLink(inside))
        return refused("a link in place of " + std::string(repositoryName));
    if (const auto folders = makeFolder(inside); !folders)
        return refused(folders.reason());
    const auto lock = lockForWriting(folder, std::chrono::seconds(10));
    if (!lock)
        return refused(lock.reason());
    if (!*lock) // somebody writes to it for long, so it is whole
        return openedAsItIs(folder);
    removeLeftovers(inside);
    repository = openedAsItIs(folder);
    if (!repository)
        repository = made(folder);
    if (!repository)
        return refused(repository.reason());
    if (const auto mended = mendHead(inside); !mended)
        return refused(mended.reason());
    if (const auto set = setUp(repository->get()); !set)
        return refused(set.reason());
    return repository;
}

} // namespace

Result<HistoryRepository> HistoryRepository::open(const std::string& folder) {
    auto repository = openedAsItIs(folder);
    if (!repository)
        return Failure{folder + ": " + repository.reason()};
    return HistoryRepository(folder, std::move(*repository));
}

Result<HistoryRepository> HistoryRepository::openOrMake(const std::string& folder) {
    auto repository = openedOrMade(folder);
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
        if (auto removed = removeFile(pathOf(std::string(branch) + ".lock")); !removed)
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
                    StoredPlaces(placesIn(root->get(), GIT_OBJECT_TREE).ofKind).placeFor(robot));
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
