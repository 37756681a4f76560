#include "history/SnapshotWriter.h"

#include "history/HistoryTrees.h"
#include "platform/Files.h"

#include <algorithm>
#include <array>
#include <set>
#include <string_view>

#include <git2/sys/mempack.h>
#include <git2/sys/odb_backend.h>

namespace vantrel {
namespace {

constexpr const char* attributesName = ".gitattributes";
/// No Git program changes the line ends of what it checks out of this history.
constexpr std::string_view attributes = "* -text\n";

Outcome outcome(int result) {
    return result < 0 ? Outcome(gitFailure()) : Outcome(Done{});
}

/// What is written through the repository stays in memory until it is packed.
Outcome keepInMemory(git_odb* database) {
    constexpr int beforeAllOthers = 1000;
    git_odb_backend* memory = nullptr;
    if (git_mempack_new(&memory) < 0)
        return gitFailure();
    if (git_odb_add_backend(database, memory, beforeAllOthers) == 0)
        return Done{};
    memory->free(memory);
    return gitFailure();
}

Result<GitSignature> signature(const HistorySignature& by) {
    return gitMade<GitSignature>([&](git_signature** made) {
        return git_signature_new(made, by.name.c_str(), by.mail.c_str(), by.time, by.offset);
    });
}

} // namespace

Result<SnapshotWriter> SnapshotWriter::begin(const std::string& folder,
                                             const std::optional<git_oid>& tip) {
    auto repository = gitMade<GitRepository>([&](git_repository** made) {
        return git_repository_open_ext(made, folder.c_str(), GIT_REPOSITORY_OPEN_NO_SEARCH,
                                       nullptr);
    });
    if (!repository)
        return Failure{repository.reason()};
    auto database = gitMade<GitDatabase>(
        [&](git_odb** made) { return git_repository_odb(made, repository->get()); });
    if (!database)
        return Failure{database.reason()};
    if (const auto kept = keepInMemory(database->get()); !kept)
        return Failure{kept.reason()};
    return SnapshotWriter(std::move(*repository), std::move(*database), tip);
}

Outcome SnapshotWriter::take(const RobotState& state) {
    if (auto opened = openLast(state.robot); !opened)
        return opened;
    std::set<std::string_view> known;
    for (const FetchedFile& file : state.files) {
        if (!known.insert(file.name).second)
            continue; // a controller may show a name twice
        if (auto taken = takeFile(file); !taken)
            return taken;
    }
    if (auto taken = takeGone(state); !taken)
        return taken;
    for (auto* const names : {&changes_.changed, &changes_.added, &changes_.gone})
        std::ranges::sort(*names);
    return Done{};
}

Outcome SnapshotWriter::openLast(const std::string& robot) {
    if (tip_) {
        auto root = treeOf(repository_.get(), *tip_);
        if (!root)
            return Failure{root.reason()};
        lastRoot_ = std::move(*root);
    }
    const Places robots = placesIn(lastRoot_.get(), GIT_OBJECT_TREE);
    robotPlace_ = StoredPlaces(robots.ofKind, robots.others).placeFor(robot);
    return robotPlace_.empty() ? Failure{"The robot's name is empty or too long"} : openFolder();
}

// What somebody else has put beside the robot's files, such as a folder, stays in the tree.
Outcome SnapshotWriter::openFolder() {
    auto folder = lastRoot_ ? folderIn(repository_.get(), lastRoot_.get(), robotPlace_)
                            : Result<GitTree>(GitTree());
    if (!folder)
        return Failure{folder.reason()};
    last_ = filesOf(folder->get());
    const Places files = placesIn(folder->get(), GIT_OBJECT_BLOB);
    places_.emplace(files.ofKind, files.others);
    auto builder = gitMade<GitTreeBuilder>([&](git_treebuilder** made) {
        return git_treebuilder_new(made, repository_.get(), folder->get());
    });
    if (!builder)
        return Failure{builder.reason()};
    robotTree_ = std::move(*builder);
    return Done{};
}

Outcome SnapshotWriter::takeFile(const FetchedFile& file) {
    const std::string place = places_->placeFor(file.name);
    if (place.empty()) {
        notStored_.push_back({file.name, {}});
        return Done{};
    }
    const auto content = readFile(file.path);
    if (!content) {
        notStored_.push_back({file.name, content.reason()});
        return Done{};
    }
    git_oid id{};
    if (git_odb_hash(&id, content->data(), content->size(), GIT_OBJECT_BLOB) < 0)
        return gitFailure();
    const auto before = last_.find(place);
    if (before != last_.end() && git_oid_equal(&before->second, &id) != 0)
        return Done{};
    if (git_odb_exists_ext(database_.get(), &id, GIT_ODB_LOOKUP_NO_REFRESH) == 0) {
        if (git_odb_write(&id, database_.get(), content->data(), content->size(), GIT_OBJECT_BLOB) <
            0)
            return gitFailure();
        fresh_.push_back(id);
    }
    (before == last_.end() ? changes_.added : changes_.changed).push_back(file.name);
    return outcome(
        git_treebuilder_insert(nullptr, robotTree_.get(), place.c_str(), &id, GIT_FILEMODE_BLOB));
}

Outcome SnapshotWriter::takeGone(const RobotState& state) {
    if (!state.isDirectoryWhole)
        return Done{};
    std::set<std::string> there(state.unfetched.begin(), state.unfetched.end());
    for (const FetchedFile& file : state.files)
        there.insert(file.name);
    for (const auto& [place, id] : last_) {
        const std::string name = nameFromStored(place);
        if (there.contains(name))
            continue;
        if (git_treebuilder_remove(robotTree_.get(), place.c_str()) < 0)
            return gitFailure();
        changes_.gone.push_back(name);
    }
    return Done{};
}

Result<git_oid> SnapshotWriter::write(const HistorySignature& by, const std::string& message) {
    auto root = writeRoot();
    if (!root)
        return root;
    auto commit = writeCommit(*root, by, message);
    if (!commit)
        return commit;
    fresh_.insert(fresh_.end(), {*root, *commit});
    if (const auto packed = writePack(); !packed)
        return Failure{packed.reason()};
    return commit;
}

// A robot whose last file is gone has no folder any more.
Result<git_oid> SnapshotWriter::writeRoot() {
    const auto builder = gitMade<GitTreeBuilder>([&](git_treebuilder** made) {
        return git_treebuilder_new(made, repository_.get(), lastRoot_.get());
    });
    if (!builder)
        return Failure{builder.reason()};
    git_treebuilder* const root = builder->get();
    if (git_treebuilder_entrycount(robotTree_.get()) == 0) {
        if (git_treebuilder_remove(root, robotPlace_.c_str()) < 0)
            return gitFailure();
    } else {
        git_oid folder{};
        if (git_treebuilder_write(&folder, robotTree_.get()) < 0 ||
            git_treebuilder_insert(nullptr, root, robotPlace_.c_str(), &folder, GIT_FILEMODE_TREE) <
                0)
            return gitFailure();
        fresh_.push_back(folder);
    }
    git_oid id{};
    if (!git_treebuilder_get(root, attributesName)) {
        if (git_odb_write(&id, database_.get(), attributes.data(), attributes.size(),
                          GIT_OBJECT_BLOB) < 0 ||
            git_treebuilder_insert(nullptr, root, attributesName, &id, GIT_FILEMODE_BLOB) < 0)
            return gitFailure();
        fresh_.push_back(id);
    }
    if (git_treebuilder_write(&id, root) < 0)
        return gitFailure();
    return id;
}

Result<git_oid> SnapshotWriter::writeCommit(const git_oid& root, const HistorySignature& by,
                                            const std::string& message) {
    const auto author = signature(by);
    if (!author)
        return Failure{author.reason()};
    const auto tree = gitMade<GitTree>(
        [&](git_tree** made) { return git_tree_lookup(made, repository_.get(), &root); });
    if (!tree)
        return Failure{tree.reason()};
    GitCommit last;
    if (tip_) {
        auto found = gitMade<GitCommit>(
            [&](git_commit** made) { return git_commit_lookup(made, repository_.get(), &*tip_); });
        if (!found)
            return Failure{found.reason()};
        last = std::move(*found);
    }
    std::array<const git_commit*, 1> parents{last.get()};
    git_oid id{};
    if (git_commit_create(&id, repository_.get(), nullptr, author->get(), author->get(), "UTF-8",
                          message.c_str(), tree->get(), last ? 1 : 0, parents.data()) < 0)
        return gitFailure();
    return id;
}

// One pack for all new objects: a few files to flush instead of one for each object.
Outcome SnapshotWriter::writePack() {
    const auto builder = gitMade<GitPackBuilder>(
        [&](git_packbuilder** made) { return git_packbuilder_new(made, repository_.get()); });
    if (!builder)
        return Failure{builder.reason()};
    git_packbuilder_set_threads(builder->get(), 1);
    for (const git_oid& id : fresh_)
        if (git_packbuilder_insert(builder->get(), &id, nullptr) < 0)
            return gitFailure();
    return outcome(git_packbuilder_write(builder->get(), nullptr, 0, nullptr, nullptr));
}

} // namespace vantrel
