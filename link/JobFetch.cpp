#include "link/JobFetch.h"

#include "link/JobNameSet.h"
#include "link/LinkConnection.h"
#include "link/OverwriteQuestion.h"
#include "link/ReplacedFile.h"
#include "link/SessionErrorRecord.h"
#include "link/SessionProgress.h"
#include "link/SessionProperties.h"
#include "link/Zurolink.h"
#include "platform/Files.h"

#include <vector>

namespace vantrel {

bool JobFetch::listFolder() {
    std::vector<std::string> names;
    const auto listed = visitNames(tools_.properties.path,
                                   [&names](std::string_view name) { names.emplace_back(name); });
    if (!listed) {
        // Without knowing what is there nothing may be fetched over it.
        tools_.error.set(session_code::fileNotReadable, "", 0);
        return false;
    }
    tools_.directory.assign(names);
    return true;
}

TransferOutcome JobFetch::fetch(const std::string& name, std::int32_t index, bool overwriteAll) {
    const auto libraryName = tools_.link.libraryFileName(name, "BscUpLoad", index);
    if (!libraryName)
        return TransferOutcome::Failed;
    TransferOutcome outcome = TransferOutcome::Done;
    if (!overwriteAll && tools_.directory.hasFile(name))
        outcome = tools_.question.ask(name);
    if (!goesOn(outcome))
        return outcome;
    if (!receive(name, *libraryName, index))
        return TransferOutcome::Failed;
    tools_.directory.insert(name);
    return outcome;
}

bool JobFetch::receive(const std::string& name, const std::string& libraryName,
                       std::int32_t index) {
    const std::int16_t handle = tools_.link.connect();
    return handle >= 0 && receiveOver(handle, name, libraryName, index);
}

bool JobFetch::receiveOver(std::int16_t handle, const std::string& name,
                           const std::string& libraryName, std::int32_t index) {
    ReplacedFile file(tools_.properties.path, name);
    if (!file.isReady()) {
        tools_.link.disconnect(handle);
        tools_.error.set(session_code::fileNotReplaceable, "", index);
        return false;
    }
    const std::int16_t received = tools_.link.library().BscUpLoad(handle, libraryName.c_str());
    if (!tools_.link.finish(handle, received, "BscUpLoad", index))
        return false;
    if (!file.hasArrived()) {
        tools_.error.set(session_code::fileDidNotArrive, "BscUpLoad", index);
        return false;
    }
    file.keep();
    return true;
}

} // namespace vantrel
