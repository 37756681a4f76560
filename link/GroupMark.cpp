#include "link/GroupMark.h"

#include "base/PathRules.h"
#include "base/Text.h"
#include "platform/Files.h"

#include <algorithm>
#include <charconv>
#include <system_error>

namespace vantrel {
namespace {

constexpr std::string_view firstLine = "Vantrel fetch group 1";
constexpr std::string_view nameBegin = "name ";
constexpr std::string_view lastLine = "end"; ///< of the announcement
constexpr std::string_view arrivedBegin = "arrived ";
constexpr std::string_view interruptedBegin = "interrupted ";

std::string lineFor(std::string_view begin, std::string_view end) {
    return std::string(begin) + std::string(end) + "\n";
}

/// Anybody can put such a file into a folder: no name in it leads out of the folder.
bool announce(std::vector<GroupMark::File>& files, std::string_view line) {
    if (!line.starts_with(nameBegin))
        return false;
    const std::string_view name = line.substr(nameBegin.size());
    if (!PathRules::isPlainName(name) || FetchMark::isFileName(name))
        return false;
    files.push_back({.name = std::string(name)});
    return true;
}

/// Null where the number is no file's.
GroupMark::File* fileOf(std::string_view number, std::vector<GroupMark::File>& files) {
    std::size_t place = 0;
    const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), place);
    const bool isWhole = error == std::errc() && end == number.data() + number.size();
    return isWhole && place < files.size() ? &files[place] : nullptr;
}

void take(std::string_view line, std::vector<GroupMark::File>& files) {
    if (line.starts_with(arrivedBegin)) {
        const auto words = split(line.substr(arrivedBegin.size()), ' ');
        GroupMark::File* const file = words.size() == 3 ? fileOf(words[0], files) : nullptr;
        if (const auto content = file ? KnownContent::parse(words[1], words[2]) : std::nullopt)
            file->arrived = content;
    } else if (line.starts_with(interruptedBegin)) {
        if (auto* const file = fileOf(line.substr(interruptedBegin.size()), files))
            file->isInterrupted = true;
    }
}

} // namespace

// No number of a file has a zero before it.
std::string GroupMark::fileName() {
    return std::string(FetchMark::namePrefix) + "00";
}

std::string GroupMark::format() const {
    std::string text = lineFor(firstLine, {});
    for (const File& file : files)
        text += lineFor(nameBegin, file.name);
    return text + lineFor(lastLine, {});
}

std::string GroupMark::arrivedLine(std::size_t file, const KnownContent& content) {
    return lineFor(arrivedBegin, std::to_string(file) + " " + std::to_string(content.size) + " " +
                                     std::to_string(content.digest));
}

std::string GroupMark::interruptedLine(std::size_t file) {
    return lineFor(interruptedBegin, std::to_string(file));
}

// The last line may be the beginning of one.
std::optional<GroupMark> GroupMark::parse(std::string_view content) {
    const auto whole = lines(content.substr(0, content.rfind('\n') + 1));
    const auto end = std::ranges::find(whole, lastLine);
    if (whole.empty() || whole.front() != firstLine || end == whole.end())
        return {};
    GroupMark mark;
    for (auto line = whole.begin() + 1; line != end; ++line)
        if (!announce(mark.files, *line))
            return {};
    if (mark.files.size() > mostFiles)
        return {};
    for (auto line = end + 1; line != whole.end(); ++line)
        take(*line, mark.files);
    return mark;
}

bool GroupMark::isTorn(std::string_view content) {
    if (content.find_first_not_of('\0') == std::string_view::npos)
        return true;
    const bool hasEnd = content.find(lineFor("\n", lastLine)) != std::string_view::npos;
    return !hasEnd && (content.starts_with(lineFor(firstLine, {})) ||
                       lineFor(firstLine, {}).starts_with(content));
}

const GroupMark::File* GroupMark::find(std::string_view name) const {
    const std::string wanted = comparedName(name);
    const auto found = std::ranges::find_if(
        files, [&wanted](const File& file) { return comparedName(file.name) == wanted; });
    return found == files.end() ? nullptr : &*found;
}

bool GroupMark::isOpen(std::string_view name) const {
    const File* const file = find(name);
    return file && !file->arrived;
}

// A mark that nobody can read may tell of any file.
bool isBeingFetched(const std::string& folder, const std::string& name) {
    const PathRules rules;
    if (FetchMark::isFileName(name) ||
        anythingExists(rules.join(folder, FetchMark::fileNameFor(name))))
        return true;
    const std::string path = rules.join(folder, GroupMark::fileName());
    if (!anythingExists(path))
        return false;
    const auto content = readFile(path);
    if (!content)
        return anythingExists(path);
    const auto mark = GroupMark::parse(*content);
    return mark ? mark->find(name) != nullptr : !GroupMark::isTorn(*content);
}

} // namespace vantrel
