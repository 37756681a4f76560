#include "link/JobFetch.h"

#include "base/PathRules.h"
#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "link/FetchMark.h"
#include "link/InterruptedFetches.h"
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
    if (!receive(name, *libraryName, index, mayReplace))
        return TransferOutcome::Failed;
    tools_.directory.insert(name);
    return outcome;
}

// The listing knows every spelling of a name, but it is as old as the operation; a file that came
// meanwhile is found by its own spelling.
bool JobFetch::existsOnPC(const std::string& name) const {
    return tools_.directory.hasFile(name) ||
           anythingExists(PathRules().join(tools_.properties.path, name));
}

// Connecting takes long and lets events run: what came meanwhile was asked for by nobody.
bool JobFetch::receive(const std::string& name, const std::string& libraryName, std::int32_t index,
                       bool mayReplace) {
    const std::int16_t handle = tools_.link.connect();
    if (handle < 0)
        return false;
    if (mayReplace || !anythingExists(PathRules().join(tools_.properties.path, name)))
        return receiveOver(handle, name, libraryName, index);
    tools_.link.disconnect(handle);
    tools_.error.set(session_code::fileChanged, "", index);
    return false;
}

bool JobFetch::receiveOver(std::int16_t handle, const std::string& name,
                           const std::string& libraryName, std::int32_t index) {
    const std::string folder = tools_.properties.path;
    const bool isTold = interrupted_.isTold(folder, name);
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
    const std::string shownName = bracketed(name);
    if (file.asideName().empty()) {
        tools_.talk.tell(shownName + tools_.messages.getMessage(message::partialFileKept),
                         BoxIcon::Exclamation);
    } else {
        tools_.talk.tell(shownName + tools_.messages.getMessage(message::oldFileKept) +
                             bracketed(file.asideName()),
                         BoxIcon::Exclamation);
    }
    file.forget();
}

} // namespace vantrel
