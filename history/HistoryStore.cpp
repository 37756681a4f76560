#include "history/HistoryStore.h"

#include "history/HistoryLog.h"
#include "history/HistoryRepository.h"
#include "history/HistoryTrees.h"
#include "history/SnapshotWriter.h"
#include "history/StoredNames.h"
#include "history/WorkingTree.h"

#include <algorithm>
#include <cstddef>
#include <map>
#include <utility>

namespace vantrel {
namespace {

/// Files by the names that the robot has for them.
std::map<std::string, git_oid> namedFiles(const git_tree* folder) {
    std::map<std::string, git_oid> files;
    for (const auto& [place, id] : filesOf(folder))
        files.emplace(nameFromStored(place), id);
    return files;
}

/// Where the folder has a file of this name; null where it has none.
const git_oid* fileIn(const git_tree* folder, const std::string& name) {
    const git_tree_entry* const usual = git_tree_entry_byname(folder, storedName(name).c_str());
    if (usual && isPlainFile(usual))
        return git_tree_entry_id(usual);
    for (std::size_t at = 0; at < git_tree_entrycount(folder); ++at) {
        const git_tree_entry* const entry = git_tree_entry_byindex(folder, at);
        if (isPlainFile(entry) && nameFromStored(git_tree_entry_name(entry)) == name)
            return git_tree_entry_id(entry);
    }
    return nullptr;
}

StateChanges difference(const std::map<std::string, git_oid>& before,
                        const std::map<std::string, git_oid>& after) {
    StateChanges changes;
    for (const auto& [name, id] : after) {
        const auto old = before.find(name);
        if (old == before.end())
            changes.added.push_back(name);
        else if (git_oid_equal(&old->second, &id) == 0)
            changes.changed.push_back(name);
    }
    for (const auto& [name, id] : before)
        if (!after.contains(name))
            changes.gone.push_back(name);
    return changes;
}

} // namespace

/// The library has to outlive what it made.
struct HistoryStore::Parts {
    GitLibrary library{};
    std::optional<HistoryRepository> repository{};
};

HistoryStore::HistoryStore(std::unique_ptr<Parts> parts) : parts_(std::move(parts)) {}
HistoryStore::HistoryStore(HistoryStore&&) noexcept = default;
HistoryStore& HistoryStore::operator=(HistoryStore&&) noexcept = default;
HistoryStore::~HistoryStore() = default;

Result<HistoryStore> HistoryStore::open(const std::string& folder) {
    return opened(folder, false);
}

Result<HistoryStore> HistoryStore::openOrMake(const std::string& folder) {
    return opened(folder, true);
}

Result<HistoryStore> HistoryStore::opened(const std::string& folder, bool mayMake) {
    auto parts = std::make_unique<Parts>();
    auto repository =
        mayMake ? HistoryRepository::openOrMake(folder) : HistoryRepository::open(folder);
    if (!repository)
        return Failure{repository.reason()};
    parts->repository.emplace(std::move(*repository));
    return HistoryStore(std::move(parts));
}

// What another Git program does to the branch at the same moment is followed, not undone.
Result<Recorded> HistoryStore::record(const RobotState& state, const HistorySignature& by,
                                      const std::function<std::string(const Recorded&)>& message) {
    constexpr int mostTries = 3;
    const auto lock = lockForWriting(parts_->repository->folder(), writerPatience);
    if (!lock)
        return Failure{lock.reason()};
    if (!*lock)
        return Recorded{.end = Recorded::End::InUse};
    for (int tries = 0; tries < mostTries; ++tries) {
        auto recorded = recordOnce(state, by, message);
        if (!recorded)
            return Failure{recorded.reason()};
        if (!*recorded)
            continue;
        showFiles(**recorded);
        return std::move(**recorded);
    }
    return Recorded{.end = Recorded::End::InUse};
}

// The order is the promise: what is new is on the disk before the branch points to it, and the
// plain files follow. Whatever of that a crash leaves out, the next record makes up for.
Result<std::optional<Recorded>>
HistoryStore::recordOnce(const RobotState& state, const HistorySignature& by,
                         const std::function<std::string(const Recorded&)>& message) {
    HistoryRepository& repository = *parts_->repository;
    const auto tip = repository.tip();
    if (!tip)
        return Failure{tip.reason()};
    auto writer = SnapshotWriter::begin(repository.folder(), *tip);
    if (!writer)
        return Failure{writer.reason()};
    if (const auto taken = writer->take(state); !taken)
        return Failure{taken.reason()};
    Recorded recorded{.version = *tip ? hexadecimal(**tip) : std::string(),
                      .changes = writer->changes(),
                      .notStored = writer->notStored()};
    if (recorded.changes.none())
        return std::optional(std::move(recorded));
    const auto commit = writer->write(by, message(recorded));
    if (!commit)
        return Failure{commit.reason()};
    if (const auto moved = repository.move(*commit, *tip, patience); !moved) {
        const auto now = repository.tip();
        const bool isSame = now && now->has_value() == tip->has_value() &&
                            (!*now || git_oid_equal(&**now, &**tip) != 0);
        return isSame ? Result<std::optional<Recorded>>(Failure{moved.reason()})
                      : std::optional<Recorded>();
    }
    recorded.end = Recorded::End::Committed;
    recorded.version = hexadecimal(*commit);
    return std::optional(std::move(recorded));
}

void HistoryStore::showFiles(Recorded& recorded) {
    git_oid version{};
    if (recorded.version.empty() || git_oid_fromstr(&version, recorded.version.c_str()) < 0)
        return;
    WorkingTree files(parts_->repository->get(), parts_->repository->folder());
    if (const auto shown = files.show(version); !shown)
        recorded.treeProblem = shown.reason();
    recorded.setAside = files.setAside();
}

Result<std::string> HistoryStore::version(const std::string& start) const {
    git_oid id{};
    if (git_oid_fromstrp(&id, start.c_str()) < 0)
        return gitFailure();
    const auto commit = gitMade<GitCommit>([&](git_commit** made) {
        return git_commit_lookup_prefix(made, parts_->repository->get(), &id, start.size());
    });
    if (!commit)
        return Failure{commit.reason()};
    return hexadecimal(*git_commit_id(commit->get()));
}

Result<std::vector<HistoryEntry>> HistoryStore::log(const HistoryFilter& filter) const {
    return HistoryLog(*parts_->repository, filter).entries();
}

Result<StateChanges> HistoryStore::changes(const std::string& version,
                                           const std::string& robot) const {
    const HistoryRepository& repository = *parts_->repository;
    const auto before = repository.versionBefore(version);
    if (!before)
        return Failure{before.reason()};
    const auto old = *before ? repository.robotIn(robot, **before) : Result<GitTree>(GitTree());
    if (!old)
        return Failure{old.reason()};
    const auto present = repository.robotIn(robot, version);
    if (!present)
        return Failure{present.reason()};
    return difference(namedFiles(old->get()), namedFiles(present->get()));
}

Result<std::vector<std::string>> HistoryStore::robots(const std::string& version) const {
    const auto root = parts_->repository->rootOf(version);
    if (!root)
        return Failure{root.reason()};
    std::vector<std::string> names;
    for (const std::string& place : placesIn(root->get(), GIT_OBJECT_TREE).ofKind)
        names.push_back(nameFromStored(place));
    std::ranges::sort(names);
    return names;
}

Result<std::vector<std::string>> HistoryStore::files(const std::string& robot,
                                                     const std::string& version) const {
    const auto folder = parts_->repository->robotIn(robot, version);
    if (!folder)
        return Failure{folder.reason()};
    std::vector<std::string> names;
    for (const auto& [name, id] : namedFiles(folder->get()))
        names.push_back(name);
    return names;
}

Result<std::optional<std::string>> HistoryStore::read(const std::string& robot,
                                                      const std::string& file,
                                                      const std::string& version) const {
    const auto folder = parts_->repository->robotIn(robot, version);
    if (!folder)
        return Failure{folder.reason()};
    const git_oid* const found = *folder ? fileIn(folder->get(), file) : nullptr;
    if (!found)
        return std::optional<std::string>();
    const auto blob = gitMade<GitBlob>(
        [&](git_blob** made) { return git_blob_lookup(made, parts_->repository->get(), found); });
    if (!blob)
        return Failure{blob.reason()};
    return std::optional(std::string(static_cast<const char*>(git_blob_rawcontent(blob->get())),
                                     static_cast<std::size_t>(git_blob_rawsize(blob->get()))));
}

} // namespace vantrel
