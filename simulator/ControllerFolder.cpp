#include "simulator/ControllerFolder.h"

#include "base/PathRules.h"
#include "platform/Files.h"
#include "simulator/ControllerFileName.h"
#include "simulator/ResultCodes.h"

#include <algorithm>
#include <filesystem>

namespace vantrel::simulator {
namespace {

std::filesystem::file_type typeOf(const std::string& path) {
    std::error_code ignored; // the type says it: `none`
    const auto native = std::filesystem::path(std::u8string(path.begin(), path.end()));
    return std::filesystem::symlink_status(native, ignored).type();
}

} // namespace

bool isPlainFile(const std::string& path) {
    return typeOf(path) == std::filesystem::file_type::regular;
}

bool isFreeOrPlainFile(const std::string& path) {
    const auto type = typeOf(path);
    return type == std::filesystem::file_type::not_found ||
           type == std::filesystem::file_type::regular;
}

Outcome writePlainFile(const std::string& path, std::string_view content) {
    if (!isFreeOrPlainFile(path))
        return Failure{"not a plain file"};
    return replaceFile(path, content);
}

bool ControllerFolder::exists() const {
    return isFolder(path_);
}

CodeOr<std::vector<std::string>> ControllerFolder::list() const {
    std::vector<std::string> jobs;
    std::vector<std::string> data;
    const auto visited = visitNames(path_, [&](std::string_view entry) {
        const auto name = controllerFileName(entry);
        if (!name || name->stored() != entry || !isPlainFile(pathOf(*name)))
            return;
        (name->kind == ControllerFileName::Kind::Data ? data : jobs).emplace_back(entry);
    });
    if (!visited)
        return fault();
    std::sort(jobs.begin(), jobs.end());
    std::sort(data.begin(), data.end());
    jobs.insert(jobs.end(), std::make_move_iterator(data.begin()),
                std::make_move_iterator(data.end()));
    return jobs;
}

// A system to which letter case does not matter would find one Greek letter for another.
bool ControllerFolder::has(const ControllerFileName& name) const {
    return isPlainFile(pathOf(name)) && findIgnoringCase(path_, name.stored()) == name.stored();
}

CodeOr<std::string> ControllerFolder::read(const ControllerFileName& name) const {
    if (!has(name))
        return missing();
    auto content = readFile(pathOf(name));
    if (!content)
        return fault();
    return std::move(*content);
}

std::int16_t ControllerFolder::store(const ControllerFileName& name,
                                     std::string_view content) const {
    // On such a system the file of another name would take the content, and not be this one.
    const bool isFree = has(name) || !anythingExists(pathOf(name));
    return isFree && writePlainFile(pathOf(name), content) ? code::done : fault();
}

std::int16_t ControllerFolder::remove(const ControllerFileName& name) const {
    if (!has(name))
        return missing();
    return removeFile(pathOf(name)) ? code::done : fault();
}

CodeOr<std::uint64_t> ControllerFolder::usedBytes() const {
    std::uint64_t used = 0;
    const auto visited = visitFolder(
        path_, [&](const FolderEntry& entry) { used += entry.isFolder ? 0 : entry.size; });
    if (!visited)
        return fault();
    return used;
}

std::int16_t ControllerFolder::fault() const {
    return exists() ? code::controllerFault : code::lineBroken;
}

std::int16_t ControllerFolder::missing() const {
    return exists() ? code::notFound : code::lineBroken;
}

std::string ControllerFolder::variablesFile() const {
    return PathRules().join(path_, "variables.txt");
}

std::string ControllerFolder::pathOf(const ControllerFileName& name) const {
    return PathRules().join(path_, name.stored());
}

} // namespace vantrel::simulator
