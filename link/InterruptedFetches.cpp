#include "link/InterruptedFetches.h"

#include "base/PathRules.h"
#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "link/FetchFiles.h"
#include "link/FetchMark.h"
#include "link/OperatorTalk.h"
#include "link/ShownText.h"
#include "platform/Files.h"

#include <optional>
#include <utility>

namespace vantrel {
namespace {

std::string pathOf(const std::string& folder, const std::string& name) {
    return PathRules().join(folder, name);
}

struct HeldMark {
    HeldFile held;
    FetchMark mark;
};

/// Nothing where somebody holds the file or it is no mark. A torn one is of a program that ended
/// before it touched anything.
std::optional<HeldMark> takeMark(FetchFiles& files, const std::string& path,
                                 const std::string& name) {
    auto held = HeldFile::take(path);
    const auto content = held ? held->read() : Failure{};
    if (!content)
        return {};
    if (FetchMark::isTorn(*content) && files.isHeldAlone(*held))
        static_cast<void>(held->remove());
    auto mark = FetchMark::parse(*content);
    if (!mark || FetchMark::fileNameFor(mark->name) != name)
        return {};
    return HeldMark{std::move(*held), std::move(*mark)};
}

} // namespace

// Each mark is held until the operator has read of it: other looks at the folder, which events let
// in meanwhile, pass it over.
bool InterruptedFetches::settle(const std::string& folder, const std::vector<std::string>& names) {
    std::vector<std::pair<std::string, HeldFile>> settled;
    std::string told;
    for (const std::string& name : names) {
        const std::string path = pathOf(folder, name);
        const bool isKnown = told_.contains(path) || path == running_;
        if (!FetchMark::isFileName(name) || isKnown || settled.size() == mostAtOnce)
            continue;
        auto found = takeMark(files_, path, name);
        if (!found)
            continue;
        const bool isOver = files_.isHeldAlone(found->held);
        told += (told.empty() ? "" : "\n") +
                (isOver ? settleOne(folder, found->mark) : describe(folder, found->mark));
        settled.emplace_back(path, std::move(found->held));
    }
    if (settled.empty())
        return false;
    talk_.tell(told, BoxIcon::Exclamation);
    for (auto& [path, held] : settled)
        if (!files_.isHeldAlone(held) || !files_.remove(held))
            told_.insert(path);
    return true;
}

bool InterruptedFetches::isOpen(const std::string& folder, const std::string& name) const {
    return anythingExists(pathOf(folder, FetchMark::fileNameFor(name))) && !isTold(folder, name);
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
    if (isFree && files_.rename(pathOf(folder, mark.aside), path))
        return text(message::oldFileIsBack) + tail;
    return (isFree ? tail : text(message::fileMayBeIncomplete)) + text(message::oldFileKeptAs) +
           bracketed(mark.aside);
}

std::string InterruptedFetches::putAway(const std::string& folder, const FetchMark& mark) {
    const std::string path = pathOf(folder, mark.name);
    const std::string part = freeSpareName(folder, mark.name, partialSuffix);
    return isRegularFile(path) && files_.rename(path, pathOf(folder, part)) ? part : std::string();
}

std::string InterruptedFetches::keptAs(const std::string& part) const {
    return text(message::partKeptAs) + bracketed(part);
}

std::string InterruptedFetches::text(std::int32_t number) const {
    return messages_.getMessage(number);
}

} // namespace vantrel
