#include "link/JobFetch.h"

#include "base/PathRules.h"
#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "link/FetchMark.h"
#include "link/InterruptedFetches.h"
#include "link/JobLists.h"
#include "link/JobNameSet.h"
#include "link/LinkConnection.h"
#include "link/OperatorTalk.h"
#include "link/OverwriteQuestion.h"
#include "link/ReplacedFile.h"
#include "link/SessionErrorRecord.h"
#include "link/SessionProgress.h"
#include "link/SessionServices.h"
#include "link/ShownText.h"
#include "link/Zurolink.h"
#include "platform/Files.h"

namespace vantrel {
namespace {

/// The time in which this program's own mark may lie in the folder.
class OwnFetch {
  public:
    OwnFetch(InterruptedFetches& fetches, const std::string& folder, const std::string& name)
        : fetches_(fetches) {
        fetches_.begin(folder, name);
    }
    ~OwnFetch() { fetches_.end(); }
    OwnFetch(const OwnFetch&) = delete;
    OwnFetch& operator=(const OwnFetch&) = delete;

  private:
    InterruptedFetches& fetches_;
};

} // namespace

bool JobFetch::listFolder() {
    std::vector<std::string> names;
    auto listed = readNames(names);
    // An older fetch that nobody ended comes first: its old version is what this one would replace.
    if (listed && interrupted_.settle(tools_.properties.path, names))
        listed = readNames(names);
    if (!listed) {
        // Without knowing what is there nothing may be fetched over it.
        tools_.error.set(session_code::folderNotReadable, "", 0);
        tools_.error.systemReason = listed.reason();
        return false;
    }
    tools_.directory.assign(names);
    return true;
}

Outcome JobFetch::readNames(std::vector<std::string>& names) const {
    names.clear();
    return visitNames(tools_.properties.path,
                      [&names](std::string_view name) { names.emplace_back(name); });
}

TransferOutcome JobFetch::fetch(const std::string& name, std::int32_t index, bool overwriteAll) {
    tools_.inTheWay.clear();
    const auto libraryName = tools_.link.libraryFileName(name, "BscUpLoad", index);
    if (!libraryName || !tools_.link.isAsBegun())
        return TransferOutcome::Failed;
    if (FetchMark::isFileName(name)) {
        tools_.error.set(session_code::nameRefused, "", index);
        return TransferOutcome::Failed;
    }
    TransferOutcome outcome = TransferOutcome::Done;
    if (existsOnPC(name)) {
        tools_.inTheWay = {name};
        const Overwrite overwrite{.name = name,
                                  .storedAs = {},
                                  .pcFile = PathRules().join(tools_.properties.path, name),
                                  .isOnPC = true};
        outcome = overwriteAll ? outcome : tools_.question.ask(overwrite);
    }
    if (!goesOn(outcome))
        return outcome;
    const bool mayReplace = overwriteAll || !tools_.inTheWay.empty();
    const TransferOutcome received = receive(name, *libraryName, index, mayReplace);
    if (received != TransferOutcome::Done)
        return received;
    tools_.directory.insert(name);
    return outcome;
}

// The listing knows every spelling of a name, but it is as old as the operation; a file that came
// meanwhile is found by its own spelling.
bool JobFetch::existsOnPC(const std::string& name) const {
    return tools_.directory.hasFile(name) ||
           anythingExists(PathRules().join(tools_.properties.path, name));
}

void JobFetch::beginList(const std::vector<std::string>& entries, const LocalJobList& localJobs) {
    lost_.clear();
    group_.begin(tools_.properties.path, entries, [this, &localJobs](const std::string& name) {
        return !localJobs.contains(name) && !tools_.directory.hasFile(name);
    });
}

// A question may stay open for long. What replaces a file that is announced is no new file any
// more.
TransferOutcome JobFetch::fetchOfList(const std::string& name, std::int32_t index,
                                      bool overwriteAll) {
    const bool endsGroup =
        group_.isDue(index) || (existsOnPC(name) && (!overwriteAll || group_.announces(name)));
    if (endsGroup && !settleGroup())
        return TransferOutcome::Stopped;
    return fetch(name, index, overwriteAll);
}

std::vector<std::int32_t> JobFetch::endList(TransferOutcome outcome) {
    settleGroup();
    group_.end();
    const bool isRecorded = outcome != TransferOutcome::Failed && !lost_.empty();
    if (isRecorded)
        tools_.error.set(session_code::fileNotFlushed, "BscUpLoad", lost_.front().index);
    std::vector<std::string> untold;
    std::vector<std::int32_t> indexes;
    for (const FetchGroup::Lost& lost : lost_) {
        if (!isRecorded || !indexes.empty())
            untold.push_back(bracketed(lost.name) + " " +
                             tools_.messages.resourceMessage(session_code::fileNotFlushed));
        indexes.push_back(lost.index);
    }
    interrupted_.tell(untold);
    return indexes;
}

bool JobFetch::settleGroup() {
    const auto lost = group_.settle();
    for (const FetchGroup::Lost& file : lost)
        if (file.isThere)
            tellPartKept(file.name);
    lost_.insert(lost_.end(), lost.begin(), lost.end());
    return lost.empty();
}

// Connecting takes long and lets events run: what came meanwhile was asked for by nobody.
TransferOutcome JobFetch::receive(const std::string& name, const std::string& libraryName,
                                  std::int32_t index, bool mayReplace) {
    const std::int16_t handle = tools_.link.connect();
    if (handle < 0)
        return TransferOutcome::Failed;
    if (!mayReplace && anythingExists(PathRules().join(tools_.properties.path, name))) {
        tools_.link.disconnect(handle);
        tools_.error.set(session_code::fileChanged, "", index);
        return TransferOutcome::Failed;
    }
    const bool isOfGroup = group_.takes(index);
    if (!isOfGroup && group_.announces(name) && !settleGroup()) {
        tools_.link.disconnect(handle);
        return TransferOutcome::Stopped;
    }
    const bool hasArrived = isOfGroup ? receiveInGroup(handle, name, libraryName, index)
                                      : receiveOver(handle, name, libraryName, index);
    return hasArrived ? TransferOutcome::Done : TransferOutcome::Failed;
}

bool JobFetch::receiveInGroup(std::int16_t handle, const std::string& name,
                              const std::string& libraryName, std::int32_t index) {
    if (receiveNew(handle, name, libraryName, index))
        return true;
    const std::string path = group_.pathOf(name);
    if (anythingExists(path) && !files_.remove(path))
        tellPartKept(name);
    return false;
}

bool JobFetch::receiveNew(std::int16_t handle, const std::string& name,
                          const std::string& libraryName, std::int32_t index) {
    const std::int16_t received = tools_.link.library().BscUpLoad(handle, libraryName.c_str());
    if (!tools_.link.finish(handle, received, "BscUpLoad", index))
        return false;
    const auto content = readFile(group_.pathOf(name));
    if (!content || content->empty()) {
        tools_.error.set(session_code::fileDidNotArrive, "BscUpLoad", index);
        return false;
    }
    if (!tools_.link.isAsBegun())
        return false;
    group_.hasArrived(index, *content);
    return true;
}

void JobFetch::tellPartKept(const std::string& name) const {
    tools_.talk.tell(bracketed(name) + tools_.messages.getMessage(message::partialFileKept),
                     BoxIcon::Exclamation);
}

bool JobFetch::receiveOver(std::int16_t handle, const std::string& name,
                           const std::string& libraryName, std::int32_t index) {
    const std::string folder = tools_.properties.path;
    const bool isTold = interrupted_.isTold(folder, name);
    // Two programs would write one file.
    if (interrupted_.isAnnounced(folder, name)) {
        tools_.link.disconnect(handle);
        tools_.error.set(session_code::fetchNotMarked, "", index);
        return false;
    }
    const OwnFetch own(interrupted_, folder, name);
    ReplacedFile file(files_, folder, name, isTold);
    if (file.problem() != 0) {
        tools_.link.disconnect(handle);
        tools_.error.set(file.problem(), "", index);
        if (file.problem() == session_code::markUnusable)
            tools_.error.mark = FetchMark::fileNameFor(name);
        return false;
    }
    if (!receiveInto(file, handle, libraryName, index)) {
        putBack(file, name);
        return false;
    }
    if (file.asideName().empty())
        return true;
    tellLeftover(file, name);
    return tools_.link.isAsBegun();
}

bool JobFetch::receiveInto(ReplacedFile& file, std::int16_t handle, const std::string& libraryName,
                           std::int32_t index) {
    const std::int16_t received = tools_.link.library().BscUpLoad(handle, libraryName.c_str());
    if (!tools_.link.finish(handle, received, "BscUpLoad", index))
        return false;
    if (!file.hasArrived()) {
        tools_.error.set(session_code::fileDidNotArrive, "BscUpLoad", index);
        return false;
    }
    // A move deletes the original next, and would do so on another robot.
    if (!tools_.link.isAsBegun())
        return false;
    const std::int16_t problem = file.keep();
    if (problem != 0)
        tools_.error.set(problem, "BscUpLoad", index);
    return problem == 0;
}

void JobFetch::tellLeftover(const ReplacedFile& file, const std::string& name) const {
    tools_.talk.tell(bracketed(name) + tools_.messages.getMessage(message::oldFileKeptAs) +
                         bracketed(file.asideName()),
                     BoxIcon::Exclamation);
}

void JobFetch::putBack(ReplacedFile& file, const std::string& name) {
    if (file.putBack())
        return;
    if (file.asideName().empty()) {
        tellPartKept(name);
    } else {
        tools_.talk.tell(bracketed(name) + tools_.messages.getMessage(message::oldFileKept) +
                             bracketed(file.asideName()),
                         BoxIcon::Exclamation);
    }
    file.forget();
}

} // namespace vantrel
