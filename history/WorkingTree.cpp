#include "history/WorkingTree.h"

#include "base/PathRules.h"
#include "base/Text.h"
#include "history/HistoryTrees.h"
#include "platform/Files.h"

#include <algorithm>
#include <filesystem>
#include <string_view>
#include <system_error>
#include <vector>

namespace vantrel {
namespace {

/// Which commit the files show.
constexpr std::string_view shownName = ".git/vantrel-shown";
/// The index is written beside its place and renamed, so that no lock of it can stay.
constexpr std::string_view newIndexName = ".git/vantrel-index";
constexpr std::string_view indexName = ".git/index";
constexpr std::string_view lockEnd = ".lock";

/// A tree may come from anywhere: only "ROBOT/FILE" and what Git itself reads lie here.
bool isOurs(const std::string& place) {
    if (place == ".gitattributes")
        return true;
    const auto parts = split(place, '/');
    return parts.size() == 2 && std::ranges::all_of(parts, [](std::string_view part) {
               return PathRules::isPlainName(part) && !part.starts_with('.');
           });
}

/// Not one that leads elsewhere.
bool isOwnFolder(const std::string& path) {
    std::error_code error;
    const auto status = std::filesystem::symlink_status(
        std::filesystem::path(std::u8string(path.begin(), path.end())), error);
    return !error && std::filesystem::is_directory(status);
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
    const auto shown = shownTree();
    if (!shown)
        return Failure{shown.reason()};
    const auto wanted = treeOf(repository_, commit);
    if (!wanted)
        return Failure{wanted.reason()};
    const auto difference = gitMade<GitDifference>([&](git_diff** made) {
        return git_diff_tree_to_tree(made, repository_, shown->get(), wanted->get(), nullptr);
    });
    if (!difference)
        return Failure{difference.reason()};
    const std::size_t count = git_diff_num_deltas(difference->get());
    for (std::size_t at = 0; at < count; ++at)
        if (auto applied = apply(*git_diff_get_delta(difference->get(), at)); !applied)
            return applied;
    if (count > 0)
        if (auto written = writeIndex(wanted->get()); !written)
            return written;
    return replaceFile(pathOf(std::string(shownName)), hexadecimal(commit) + "\n");
}

/// Without a readable note of it every file is written anew.
Result<GitTree> WorkingTree::shownTree() const {
    const auto note = readFile(pathOf(std::string(shownName)));
    git_oid commit{};
    if (!note || git_oid_fromstr(&commit, std::string(trimmed(*note)).c_str()) < 0)
        return GitTree();
    auto tree = treeOf(repository_, commit);
    return tree ? std::move(tree) : GitTree();
}

Outcome WorkingTree::apply(const git_diff_delta& delta) {
    const bool isGone = delta.status == GIT_DELTA_DELETED;
    const git_diff_file& file = isGone ? delta.old_file : delta.new_file;
    const std::string place = file.path;
    if (!isOurs(place) || !isPlainFile(file.mode))
        return Done{};
    return isGone ? remove(place) : write(place, file.id);
}

Outcome WorkingTree::write(const std::string& place, const git_oid& blob) {
    const std::string path = pathOf(place);
    if (place.find('/') != std::string::npos) {
        const std::string robot = pathOf(robotOf(place));
        if (!isOwnFolder(robot))
            if (auto made = createFolder(robot); !made)
                return Failure{robot + ": " + made.reason()};
    }
    const auto found = gitMade<GitBlob>(
        [&](git_blob** made) { return git_blob_lookup(made, repository_, &blob); });
    if (!found)
        return Failure{found.reason()};
    const std::string_view content(static_cast<const char*>(git_blob_rawcontent(found->get())),
                                   static_cast<std::size_t>(git_blob_rawsize(found->get())));
    auto written = replaceFile(path, content);
    return written ? std::move(written) : Failure{path + ": " + written.reason()};
}

Outcome WorkingTree::remove(const std::string& place) {
    const std::string path = pathOf(place);
    const std::string robot = pathOf(robotOf(place));
    if (!isOwnFolder(robot))
        return Done{};
    if (isRegularFile(path))
        if (auto removed = removeFile(path); !removed)
            return Failure{path + ": " + removed.reason()};
    static_cast<void>(removeFolder(robot)); // unless something is left in it
    return Done{};
}

Outcome WorkingTree::writeIndex(git_tree* tree) {
    const std::string path = pathOf(std::string(newIndexName));
    for (const std::string& left : {path, path + std::string(lockEnd)})
        if (isRegularFile(left))
            static_cast<void>(removeFile(left));
    const std::string place = pathOf(std::string(indexName));
    if (anythingExists(place + std::string(lockEnd)))
        return Done{}; // another program is at work with it, and brings it up to date
    const auto index =
        gitMade<GitIndex>([&](git_index** made) { return git_index_open(made, path.c_str()); });
    if (!index)
        return Failure{index.reason()};
    if (git_index_read_tree(index->get(), tree) < 0 || git_index_write(index->get()) < 0)
        return gitFailure();
    return renameFile(path, place);
}

} // namespace vantrel
