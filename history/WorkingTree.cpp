#include "history/WorkingTree.h"

#include "base/PathRules.h"
#include "base/Text.h"
#include "history/HistoryTrees.h"
#include "platform/Files.h"
#include "platform/Links.h"

#include <algorithm>
#include <string_view>
#include <utility>
#include <vector>

namespace vantrel {
namespace {

/// Which commit the files show.
constexpr std::string_view shownName = ".git/vantrel-shown";
/// The index is written beside its place and renamed, so that no lock of it can stay.
constexpr std::string_view newIndexName = ".git/vantrel-index";
constexpr std::string_view indexName = ".git/index";
constexpr std::string_view lockEnd = ".lock";
constexpr std::string_view attributesName = ".gitattributes";

/// A tree may come from anywhere: only "ROBOT/FILE" lies here, in names as this program writes
/// them, and what Git itself reads. A "~" could be the system's short name of the repository.
bool isOurs(const std::string& place) {
    if (place == attributesName)
        return true;
    const auto parts = split(place, '/');
    return parts.size() == 2 && std::ranges::all_of(parts, [](std::string_view part) {
               return PathRules::isPlainName(part) && !part.starts_with('.') &&
                      part.find('~') == std::string_view::npos;
           });
}

/// Not one that leads elsewhere.
bool isOwnFolder(const std::string& path) {
    return isFolder(path) && !isLink(path);
}

bool isPlainFile(std::uint16_t mode) {
    return mode == GIT_FILEMODE_BLOB || mode == GIT_FILEMODE_BLOB_EXECUTABLE;
}

std::string robotOf(const std::string& place) {
    return place.substr(0, place.find('/'));
}

} // namespace

std::string WorkingTree::pathOf(const std::string& place) const {
    std::string path = folder_;
    for (const std::string_view part : split(place, '/'))
        path = PathRules().join(path, part);
    return path;
}

Outcome WorkingTree::show(const git_oid& commit) {
    const auto before = shown();
    if (!before)
        return Failure{before.reason()};
    if (*before && git_oid_equal(&**before, &commit) != 0)
        return Done{};
    auto old = *before ? treeOf(repository_, **before) : Result<GitTree>(GitTree());
    if (!old) // the note is of another history
        old = GitTree();
    const auto wanted = treeOf(repository_, commit);
    if (!wanted)
        return Failure{wanted.reason()};
    const auto difference = gitMade<GitDifference>([&](git_diff** made) {
        return git_diff_tree_to_tree(made, repository_, old->get(), wanted->get(), nullptr);
    });
    if (!difference)
        return Failure{difference.reason()};
    // What goes first leaves room: two of the names may be one to the system.
    for (const bool removals : {true, false})
        if (auto applied = apply(difference->get(), removals); !applied)
            return applied;
    if (auto written = writeIndex(wanted->get()); !written)
        return written;
    const std::string note = pathOf(std::string(shownName));
    if (isLink(note))
        if (auto removed = removeFile(note); !removed)
            return removed;
    return replaceFile(note, hexadecimal(commit) + "\n");
}

/// Without a readable note of it every file is written anew.
Result<std::optional<git_oid>> WorkingTree::shown() const {
    const auto note = readFile(pathOf(std::string(shownName)));
    git_oid commit{};
    if (!note || git_oid_fromstr(&commit, std::string(trimmed(*note)).c_str()) < 0)
        return std::optional<git_oid>();
    return std::optional(commit);
}

Outcome WorkingTree::apply(git_diff* difference, bool removals) {
    const std::size_t count = git_diff_num_deltas(difference);
    for (std::size_t at = 0; at < count; ++at) {
        const git_diff_delta& delta = *git_diff_get_delta(difference, at);
        if ((delta.status == GIT_DELTA_DELETED) != removals)
            continue;
        if (auto applied = apply(delta); !applied)
            return applied;
    }
    return Done{};
}

Outcome WorkingTree::apply(const git_diff_delta& delta) {
    const bool isGone = delta.status == GIT_DELTA_DELETED;
    const git_diff_file& file = isGone ? delta.old_file : delta.new_file;
    const std::string place = file.path;
    if (!isOurs(place) || !isPlainFile(file.mode))
        return Done{};
    auto applied = isGone ? remove(place) : write(place, file.id);
    return applied ? std::move(applied) : Failure{pathOf(place) + ": " + applied.reason()};
}

Outcome WorkingTree::write(const std::string& place, const git_oid& blob) {
    if (place.find('/') != std::string::npos) {
        const std::string robot = pathOf(robotOf(place));
        if (!isOwnFolder(robot))
            if (auto made = createFolder(robot); !made)
                return made;
    }
    const auto found = gitMade<GitBlob>(
        [&](git_blob** made) { return git_blob_lookup(made, repository_, &blob); });
    if (!found)
        return Failure{found.reason()};
    if (auto cleared = clear(place); !cleared)
        return cleared;
    const std::string_view content(static_cast<const char*>(git_blob_rawcontent(found->get())),
                                   static_cast<std::size_t>(git_blob_rawsize(found->get())));
    return replaceFile(pathOf(place), content);
}

Outcome WorkingTree::remove(const std::string& place) {
    const std::string robot = pathOf(robotOf(place));
    if (!isOwnFolder(robot))
        return Done{};
    if (auto cleared = clear(place); !cleared)
        return cleared;
    if (isRegularFile(pathOf(place)))
        if (auto removed = removeFile(pathOf(place)); !removed)
            return removed;
    static_cast<void>(removeFolder(robot)); // unless something is left in it
    return Done{};
}

// A file whose content the history has can be replaced or removed: it can be had again.
Outcome WorkingTree::clear(const std::string& place) {
    const std::string path = pathOf(place);
    if (isLink(path))
        return removeFile(path);
    if (!anythingExists(path))
        return Done{};
    if (!isRegularFile(path))
        return Failure{"not a file"};
    const auto content = readFile(path);
    if (!content)
        return Failure{content.reason()};
    if (isKnown(*content))
        return Done{};
    for (int number = 1;; ++number) {
        const std::string spare = path + ".kept-" + std::to_string(number);
        if (anythingExists(spare))
            continue;
        auto renamed = renameToFree(path, spare);
        if (renamed)
            setAside_.push_back(spare);
        return renamed;
    }
}

bool WorkingTree::isKnown(const std::string& content) const {
    git_oid id{};
    const auto database =
        gitMade<GitDatabase>([&](git_odb** made) { return git_repository_odb(made, repository_); });
    return database && git_odb_hash(&id, content.data(), content.size(), GIT_OBJECT_BLOB) == 0 &&
           git_odb_exists(database->get(), &id) != 0;
}

// Names of somebody else's may be such as no index takes, and nothing here needs one.
Outcome WorkingTree::writeIndex(git_tree* tree) {
    for (std::size_t at = 0; at < git_tree_entrycount(tree); ++at) {
        const std::string name = git_tree_entry_name(git_tree_entry_byindex(tree, at));
        if (name != attributesName && !isOurs(name + "/FILE"))
            return Done{};
    }
    const std::string path = pathOf(std::string(newIndexName));
    for (const std::string& left : {path, path + std::string(lockEnd)})
        if (isRegularFile(left) || isLink(left))
            static_cast<void>(removeFile(left));
    const std::string place = pathOf(std::string(indexName));
    if (anythingExists(place + std::string(lockEnd)))
        return Done{}; // another program is at work with it; the next entry writes it anew
    const auto index =
        gitMade<GitIndex>([&](git_index** made) { return git_index_open(made, path.c_str()); });
    if (!index)
        return Failure{index.reason()};
    if (git_index_read_tree(index->get(), tree) < 0)
        return Done{};
    if (git_index_write(index->get()) < 0)
        return gitFailure();
    return renameFile(path, place);
}

} // namespace vantrel
