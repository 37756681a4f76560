#include "link/InterruptedFetches.h"

#include "base/PathRules.h"
#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "link/FetchFiles.h"
#include "link/FetchMark.h"
#include "link/OperatorTalk.h"
#include "link/SessionErrorRecord.h"
#include "link/ShownText.h"
#include "platform/Files.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace vantrel {

namespace {

std::string pathOf(const std::string& folder, const std::string& name) {
    return PathRules().join(folder, name);
}

/// What lies under a mark's name.
struct Look {
    bool isUnusable = false;        ///< it is there, and nobody can tell what it stands for
    std::optional<HeldFile> held{}; ///< a whole mark that nobody else holds, with one of these:
    FetchMark mark{};
    std::optional<GroupMark> group{};
};

/// False when that is no whole mark of this name.
bool readMark(Look& look, const std::string& content, const std::string& name) {
    if (name == GroupMark::fileName()) {
        look.group = GroupMark::parse(content);
        return look.group.has_value();
    }
    auto mark = FetchMark::parse(content);
    if (!mark || FetchMark::fileNameFor(mark->name) != name)
        return false;
    look.mark = std::move(*mark);
    return true;
}

bool isTornMark(const std::string& content, const std::string& name) {
    return name == GroupMark::fileName() ? GroupMark::isTorn(content) : FetchMark::isTorn(content);
}

/// Neither where somebody holds the file or it is gone. A torn one is of a program that ended
/// before it touched anything, and goes.
Look lookAt(FetchFiles& files, const std::string& path, const std::string& name) {
    auto taken = files.take(path);
    if (taken && !*taken)
        return {};
    const auto content = taken ? (*taken)->read() : Failure{};
    if (!content)
        return {.isUnusable = true};
    Look look;
    if (readMark(look, *content, name)) {
        look.held = std::move(*taken);
        return look;
    }
    const bool isTorn = isTornMark(*content, name) && files.isHeldAlone(**taken);
    return {.isUnusable = !isTorn || !files.remove(**taken)};
}

std::string inLines(const std::vector<std::string>& texts) {
    std::string lines;
    for (const std::string& text : texts)
        lines += (lines.empty() ? "" : "\n") + text;
    return lines;
}

/// The file that a mark of this name stands for, and its old version, as far as the folder has
/// them.
FetchMark fileOf(const std::string& markName, const std::vector<std::string>& names) {
    FetchMark file;
    for (const std::string& name : names) {
        const std::string before = name.substr(0, name.rfind(replacedSuffix));
        if (FetchMark::fileNameFor(before) != markName)
            continue;
        file.name = before;
        if (before != name)
            file.aside = name;
    }
    return file;
}

} // namespace

// Each mark is held until the operator has read of it: other looks at the folder, which events let
// in meanwhile, pass it over.
bool InterruptedFetches::settle(const std::string& folder, const std::vector<std::string>& names) {
    std::vector<std::pair<std::string, HeldFile>> settled;
    std::vector<std::string> told;
    for (const std::string& name : names) {
        if (!FetchMark::isFileName(name) || told.size() >= mostAtOnce)
            continue;
        const std::string path = pathOf(folder, name);
        if (told_.contains(path) || path == running_ || path == runningGroup_)
            continue;
        Look look = lookAt(files_, path, name);
        if (look.isUnusable) {
            // It may become readable, and is settled then.
            if (toldUnusable_.insert(path).second)
                told.push_back(describeUnusable(name, names));
        } else if (look.held) {
            const bool isOver = files_.isHeldAlone(*look.held);
            const auto texts = look.group ? settleGroup(folder, *look.held, *look.group, isOver)
                                          : std::vector{isOver ? settleOne(folder, look.mark)
                                                               : describe(folder, look.mark)};
            told.insert(told.end(), texts.begin(), texts.end());
            settled.emplace_back(path, std::move(*look.held));
        }
    }
    tell(told);
    for (auto& [path, held] : settled)
        if (!files_.isHeldAlone(held) || !files_.remove(held))
            told_.insert(path);
    return !told.empty();
}

void InterruptedFetches::tell(const std::vector<std::string>& lines) const {
    for (std::size_t first = 0; first < lines.size(); first += mostAtOnce) {
        const std::size_t behind = std::min(first + mostAtOnce, lines.size());
        talk_.tell(inLines({lines.begin() + static_cast<std::ptrdiff_t>(first),
                            lines.begin() + static_cast<std::ptrdiff_t>(behind)}),
                   BoxIcon::Exclamation);
    }
}

// A mark that cannot be read forbids it whether or not the operator was told: what he was told is
// to look at the file and to remove the mark.
std::int16_t InterruptedFetches::forbidsSending(const std::string& folder,
                                                const std::string& name) {
    const std::string mark = FetchMark::fileNameFor(name);
    const std::string path = pathOf(folder, mark);
    if (!anythingExists(path))
        return forbiddenByGroup(folder, name);
    const Look look = lookAt(files_, path, mark);
    if (look.isUnusable) {
        unusable_ = mark;
        return session_code::markUnusable;
    }
    const bool isOpen = look.held ? !told_.contains(path) : anythingExists(path);
    return isOpen ? session_code::fileNotReadable : forbiddenByGroup(folder, name);
}

// Of a mark that cannot be read nobody knows whether it tells of this file. Where nobody holds it
// the power may have taken what had arrived.
std::int16_t InterruptedFetches::forbiddenByGroup(const std::string& folder,
                                                  const std::string& name) {
    const std::string path = pathOf(folder, GroupMark::fileName());
    if (!anythingExists(path))
        return 0;
    const Look look = lookAt(files_, path, GroupMark::fileName());
    if (look.held) {
        const GroupMark::File* const file = look.group->find(name);
        const bool isWhole = !file || (file->arrived && file->arrived->isIn(pathOf(folder, name)));
        return !isWhole && !told_.contains(path) ? session_code::fileNotReadable : std::int16_t{0};
    }
    const auto content = look.isUnusable ? Failure{} : readFile(path);
    if (content)
        return forbiddenBy(*content, name);
    if (!look.isUnusable)
        return anythingExists(path) ? session_code::fileNotReadable : std::int16_t{0};
    unusable_ = GroupMark::fileName();
    return session_code::markUnusable;
}

bool InterruptedFetches::isAnnounced(const std::string& folder, const std::string& name) {
    return forbiddenByGroup(folder, name) == session_code::fileNotReadable;
}

// Many files are asked about while the mark stays the same. One that is still being written tells
// of files that are not there yet.
std::int16_t InterruptedFetches::forbiddenBy(const std::string& content, const std::string& name) {
    if (content != groupContent_) {
        auto mark = GroupMark::parse(content);
        if (!mark && !GroupMark::isTorn(content)) {
            unusable_ = GroupMark::fileName();
            return session_code::markUnusable;
        }
        groupContent_ = content;
        group_ = mark ? std::move(*mark) : GroupMark();
    }
    return group_.isOpen(name) ? session_code::fileNotReadable : std::int16_t{0};
}

bool InterruptedFetches::isTold(const std::string& folder, const std::string& name) const {
    return told_.contains(pathOf(folder, FetchMark::fileNameFor(name)));
}

void InterruptedFetches::begin(const std::string& folder, const std::string& name) {
    running_ = pathOf(folder, FetchMark::fileNameFor(name));
    told_.erase(running_);
}

void InterruptedFetches::beginGroup(const std::string& folder) {
    runningGroup_ = pathOf(folder, GroupMark::fileName());
    told_.erase(runningGroup_);
}

std::vector<std::string> InterruptedFetches::settleGroup(const std::string& folder, HeldFile& held,
                                                         const GroupMark& mark, bool isOver) {
    const std::set<std::string> whole = wholeFiles(folder, mark, isOver);
    if (isOver)
        noteInterrupted(folder, held, mark);
    std::vector<std::string> told;
    for (const GroupMark::File& file : mark.files) {
        const FetchMark single{.name = file.name};
        const bool isThere = anythingExists(pathOf(folder, file.name));
        // One that was only announced, and never came.
        const bool isNothing = !isThere && !file.arrived && !file.isInterrupted;
        if (isNothing || whole.contains(file.name))
            continue;
        const bool mayMove = isOver && (!file.arrived || !isThere);
        told.push_back(mayMove ? settleOne(folder, single) : describe(folder, single));
    }
    return told;
}

std::set<std::string> InterruptedFetches::wholeFiles(const std::string& folder,
                                                     const GroupMark& mark, bool isOver) {
    std::vector<std::string> names;
    for (const GroupMark::File& file : mark.files)
        if (file.arrived && file.arrived->isIn(pathOf(folder, file.name)))
            names.push_back(file.name);
    std::set<std::string> whole(names.begin(), names.end());
    // The program may have ended alone, and the power may go after the mark.
    if (isOver && !names.empty())
        for (const std::string& name : files_.flushAll(folder, names))
            whole.erase(name);
    return whole;
}

// What cannot be noted is told all the same, now.
void InterruptedFetches::noteInterrupted(const std::string& folder, HeldFile& held,
                                         const GroupMark& mark) {
    std::string noted;
    for (std::size_t place = 0; place < mark.files.size(); ++place) {
        const GroupMark::File& file = mark.files[place];
        if (!file.arrived && !file.isInterrupted && anythingExists(pathOf(folder, file.name)))
            noted += GroupMark::interruptedLine(place);
    }
    if (!noted.empty() && files_.append(held, noted))
        static_cast<void>(files_.flush(held));
}

std::string InterruptedFetches::settleOne(const std::string& folder, const FetchMark& mark) {
    const std::string head = bracketed(mark.name) + text(message::transferInterrupted);
    const std::string path = pathOf(folder, mark.name);
    if (mark.aside.empty()) {
        if (!anythingExists(path))
            return head + text(message::nothingArrived);
        const std::string part = putAway(folder, mark);
        return head + (part.empty() ? text(message::fileMayBeIncomplete) : keptAs(part));
    }
    if (mark.describes(pathOf(folder, mark.aside)))
        return head + bringBack(folder, mark);
    if (mark.describes(path))
        return head + text(message::oldFileIsBack);
    // Somebody else was at work here meanwhile: what lies there may be his.
    return describe(folder, mark);
}

std::string InterruptedFetches::describeUnusable(const std::string& name,
                                                 const std::vector<std::string>& names) const {
    if (name == GroupMark::fileName())
        return bracketed(name) + text(message::groupMarkUnusable);
    const FetchMark file = fileOf(name, names);
    if (file.name.empty())
        return bracketed(name) + text(message::markOfNoFile);
    const std::string oldFile =
        file.aside.empty() ? "" : text(message::oldFileKeptAs) + bracketed(file.aside);
    return bracketed(file.name) + text(message::markUnusable) + bracketed(name) + oldFile;
}

std::string InterruptedFetches::describe(const std::string& folder, const FetchMark& mark) const {
    const bool hasOld = !mark.aside.empty() && anythingExists(pathOf(folder, mark.aside));
    return bracketed(mark.name) + text(message::transferInterrupted) +
           text(message::fileMayBeIncomplete) +
           (hasOld ? text(message::oldFileKeptAs) + bracketed(mark.aside) : std::string());
}

std::string InterruptedFetches::bringBack(const std::string& folder, const FetchMark& mark) {
    const std::string path = pathOf(folder, mark.name);
    const std::string part = anythingExists(path) ? putAway(folder, mark) : std::string();
    const std::string tail = part.empty() ? std::string() : keptAs(part);
    const bool isFree = !anythingExists(path);
    if (isFree && files_.giveName(pathOf(folder, mark.aside), path))
        return text(message::oldFileIsBack) + tail;
    return (isFree ? tail : text(message::fileMayBeIncomplete)) + text(message::oldFileKeptAs) +
           bracketed(mark.aside);
}

std::string InterruptedFetches::putAway(const std::string& folder, const FetchMark& mark) {
    const std::string path = pathOf(folder, mark.name);
    const std::string part = freeSpareName(folder, mark.name, partialSuffix);
    return isRegularFile(path) && files_.giveName(path, pathOf(folder, part)) ? part
                                                                              : std::string();
}

std::string InterruptedFetches::keptAs(const std::string& part) const {
    return text(message::partKeptAs) + bracketed(part);
}

std::string InterruptedFetches::text(std::int32_t number) const {
    return messages_.getMessage(number);
}

} // namespace vantrel
