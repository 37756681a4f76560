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
    std::optional<HeldFile> held{}; ///< with `mark`, a whole mark that nobody else holds
    FetchMark mark{};
};

/// Neither where somebody holds the file or it is gone. A torn one is of a program that ended
/// before it touched anything, and goes.
Look lookAt(FetchFiles& files, const std::string& path, const std::string& name) {
    auto taken = files.take(path);
    if (taken && !*taken)
        return {};
    const auto content = taken ? (*taken)->read() : Failure{};
    if (!content)
        return {.isUnusable = true};
    if (auto mark = FetchMark::parse(*content); mark && FetchMark::fileNameFor(mark->name) == name)
        return {.held = std::move(*taken), .mark = std::move(*mark)};
    const bool isTorn = FetchMark::isTorn(*content) && files.isHeldAlone(**taken);
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
        if (!FetchMark::isFileName(name) || told.size() == mostAtOnce)
            continue;
        const std::string path = pathOf(folder, name);
        if (told_.contains(path) || path == running_)
            continue;
        Look look = lookAt(files_, path, name);
        if (look.isUnusable) {
            // It may become readable, and is settled then.
            if (toldUnusable_.insert(path).second)
                told.push_back(describeUnusable(name, names));
        } else if (look.held) {
            const bool isOver = files_.isHeldAlone(*look.held);
            told.push_back(isOver ? settleOne(folder, look.mark) : describe(folder, look.mark));
            settled.emplace_back(path, std::move(*look.held));
        }
    }
    if (told.empty())
        return false;
    talk_.tell(inLines(told), BoxIcon::Exclamation);
    for (auto& [path, held] : settled)
        if (!files_.isHeldAlone(held) || !files_.remove(held))
            told_.insert(path);
    return true;
}

// A mark that cannot be read forbids it whether or not the operator was told: what he was told is
// to look at the file and to remove the mark.
std::int16_t InterruptedFetches::forbidsSending(const std::string& folder,
                                                const std::string& name) {
    const std::string mark = FetchMark::fileNameFor(name);
    const std::string path = pathOf(folder, mark);
    if (!anythingExists(path))
        return 0;
    const Look look = lookAt(files_, path, mark);
    if (look.isUnusable)
        return session_code::markUnusable;
    const bool isOpen = look.held ? !told_.contains(path) : anythingExists(path);
    return isOpen ? session_code::fileNotReadable : std::int16_t{0};
}

bool InterruptedFetches::isTold(const std::string& folder, const std::string& name) const {
    return told_.contains(pathOf(folder, FetchMark::fileNameFor(name)));
}

void InterruptedFetches::begin(const std::string& folder, const std::string& name) {
    running_ = pathOf(folder, FetchMark::fileNameFor(name));
    told_.erase(running_);
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
