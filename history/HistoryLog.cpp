#include "history/HistoryLog.h"

#include "history/HistoryTrees.h"
#include "history/StoredNames.h"

#include <optional>

namespace vantrel {
namespace {

std::string bytesOf(const git_oid* id) {
    return id ? std::string(reinterpret_cast<const char*>(id->id), GIT_OID_RAWSZ) : std::string();
}

std::string textOf(const char* text) {
    return text ? text : "";
}

HistoryEntry entryOf(const git_commit* commit) {
    const git_signature* const author = git_commit_author(commit);
    HistoryEntry entry{
        .version = hexadecimal(*git_commit_id(commit)),
        .by = {textOf(author->name), textOf(author->email), author->when.time, author->when.offset},
        .message = textOf(git_commit_message(commit))};
    for (unsigned parent = 0; parent < git_commit_parentcount(commit); ++parent)
        entry.before.push_back(hexadecimal(*git_commit_parent_id(commit, parent)));
    return entry;
}

} // namespace

Result<std::vector<HistoryEntry>> HistoryLog::entries() {
    std::vector<HistoryEntry> found;
    const auto tip = repository_.tip();
    if (!tip)
        return Failure{tip.reason()};
    if (!*tip)
        return found;
    const auto walk = gitMade<GitWalk>(
        [&](git_revwalk** made) { return git_revwalk_new(made, repository_.get()); });
    if (!walk)
        return Failure{walk.reason()};
    if (git_revwalk_sorting(walk->get(), GIT_SORT_TOPOLOGICAL | GIT_SORT_TIME) < 0 ||
        git_revwalk_push(walk->get(), &**tip) < 0)
        return gitFailure();
    git_oid id{};
    int next = git_revwalk_next(&id, walk->get());
    for (; next == 0 && found.size() < filter_.most; next = git_revwalk_next(&id, walk->get())) {
        const auto commit = gitMade<GitCommit>(
            [&](git_commit** made) { return git_commit_lookup(made, repository_.get(), &id); });
        if (!commit)
            return Failure{commit.reason()};
        if (!isInTime(commit->get()))
            continue;
        const auto concerned = concerns(commit->get());
        if (!concerned)
            return Failure{concerned.reason()};
        if (*concerned)
            found.push_back(entryOf(commit->get()));
    }
    return next < 0 && next != GIT_ITEROVER ? Result<std::vector<HistoryEntry>>(gitFailure())
                                            : std::move(found);
}

bool HistoryLog::isInTime(const git_commit* commit) const {
    const git_time_t time = git_commit_time(commit);
    return time >= filter_.since.value_or(time) && time <= filter_.until.value_or(time);
}

Result<bool> HistoryLog::concerns(git_commit* commit) {
    if (filter_.robot.empty())
        return true;
    const auto present = trace(*git_commit_id(commit));
    if (!present)
        return Failure{present.reason()};
    const unsigned parents = git_commit_parentcount(commit);
    for (unsigned parent = 0; parent < parents; ++parent) {
        const auto before = trace(*git_commit_parent_id(commit, parent));
        if (!before)
            return Failure{before.reason()};
        if (*before == *present)
            return false;
    }
    return parents > 0 || !present->empty();
}

Result<std::string> HistoryLog::trace(const git_oid& commit) {
    const std::string key = bytesOf(&commit);
    if (const auto known = traces_.find(key); known != traces_.end())
        return known->second;
    const auto root = treeOf(repository_.get(), commit);
    if (!root)
        return Failure{root.reason()};
    auto traced = traceIn(root->get());
    if (traced)
        traces_.emplace(key, *traced);
    return traced;
}

Result<std::string> HistoryLog::traceIn(const git_tree* root) {
    const std::string place =
        StoredPlaces(placesIn(root, GIT_OBJECT_TREE).ofKind).placeFor(filter_.robot);
    const git_tree_entry* const folder = git_tree_entry_byname(root, place.c_str());
    if (!folder || git_tree_entry_type(folder) != GIT_OBJECT_TREE)
        return std::string();
    const std::string robot = bytesOf(git_tree_entry_id(folder));
    if (filter_.file.empty())
        return robot;
    if (const auto known = fileTraces_.find(robot); known != fileTraces_.end())
        return known->second;
    const auto tree = folderIn(repository_.get(), root, place);
    if (!tree)
        return Failure{tree.reason()};
    const std::string file =
        StoredPlaces(placesIn(tree->get(), GIT_OBJECT_BLOB).ofKind).placeFor(filter_.file);
    const git_tree_entry* const entry = git_tree_entry_byname(tree->get(), file.c_str());
    return fileTraces_[robot] = entry ? bytesOf(git_tree_entry_id(entry)) : std::string();
}

} // namespace vantrel
