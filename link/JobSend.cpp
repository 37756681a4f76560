#include "link/JobSend.h"

#include "base/PathRules.h"
#include "link/JobDeletion.h"
#include "link/JobFile.h"
#include "link/JobNameSet.h"
#include "link/LinkConnection.h"
#include "link/OverwriteQuestion.h"
#include "link/SessionErrorRecord.h"
#include "link/SessionProgress.h"
#include "link/SessionProperties.h"
#include "link/Zurolink.h"
#include "platform/TextEncoding.h"

#include <algorithm>

namespace vantrel {
namespace {

/// Whether a controller can keep a job under the name of its "//NAME" line.
bool isUsableJobName(const std::string& name) {
    return PathRules::isPlainName(name) && PathRules::isPlainName(name + ".JBI") &&
           toCodePage(name);
}

} // namespace

TransferOutcome JobSend::send(const std::string& file, std::int32_t index,
                              const ReplaceConsent& consent) {
    tools_.inTheWay.clear();
    const auto libraryName = tools_.link.libraryFileName(file, "BscDownLoad", index);
    if (!libraryName || !tools_.link.isAsBegun())
        return TransferOutcome::Failed;
    const auto inside = readNameInside(file, index);
    if (!inside)
        return TransferOutcome::Failed;
    const TransferOutcome outcome = prepare(file, *inside, index, consent);
    if (!goesOn(outcome))
        return outcome;
    if (!transmit(file, *libraryName, index))
        return TransferOutcome::Failed;
    tools_.directory.insert(inside->empty() ? file : jobFileName(*inside));
    return outcome;
}

std::optional<std::string> JobSend::readNameInside(const std::string& file, std::int32_t index) {
    if (!isJobFileName(file))
        return std::string();
    const auto job = JobFile::read(PathRules().join(tools_.properties.path, file));
    if (job)
        return job->name();
    tools_.error.set(session_code::fileNotReadable, "", index);
    return {};
}

// Every question comes before the first deletion, so that a refusal leaves the controller as it
// was. A file that the controller could give no name to would cost it the old job for nothing; when
// none is in the way, the judgement is the controller's.
TransferOutcome JobSend::prepare(const std::string& file, const std::string& nameInside,
                                 std::int32_t index, const ReplaceConsent& consent) {
    if (!isJobFileName(file))
        return TransferOutcome::Done;
    const auto jobs = jobsInTheWay(file, nameInside);
    const bool deletes = jobExtension(file) == ".JBI";
    if (deletes && !jobs.empty() && !isUsableJobName(nameInside)) {
        tools_.error.set(session_code::jobNameUnusable, "", index);
        return TransferOutcome::Failed;
    }
    tools_.inTheWay = shownNames(file, jobs);
    if (jobs.empty())
        return TransferOutcome::Done;
    const TransferOutcome outcome = agree(file, nameInside, index, consent);
    if (!goesOn(outcome))
        return outcome;
    return !deletes || removeAll(jobs) ? outcome : TransferOutcome::Failed;
}

TransferOutcome JobSend::agree(const std::string& file, const std::string& nameInside,
                               std::int32_t index, const ReplaceConsent& consent) {
    if (consent.toAll)
        return TransferOutcome::Done;
    if (consent.toThese) {
        const auto& asked = *consent.toThese;
        const bool isAsked = std::ranges::all_of(tools_.inTheWay, [&asked](const auto& name) {
            return std::ranges::find(asked, name) != asked.end();
        });
        if (!isAsked)
            tools_.error.set(session_code::fileChanged, "", index);
        return isAsked ? TransferOutcome::Done : TransferOutcome::Failed;
    }
    const TransferOutcome outcome = askAll(tools_.inTheWay);
    const bool goesWrong = goesOn(outcome) && !isAsAsked(file, nameInside, index);
    return goesWrong ? TransferOutcome::Failed : outcome;
}

bool JobSend::isAsAsked(const std::string& file, const std::string& nameInside,
                        std::int32_t index) {
    const auto now = readNameInside(file, index);
    if (now && *now != nameInside)
        tools_.error.set(session_code::fileChanged, "", index);
    return now && *now == nameInside;
}

// A file FOO.JBI whose line names BAR concerns both jobs: the operator thinks of the file by FOO,
// the controller will keep it as BAR. So where only FOO exists, FOO is asked for and goes all the
// same: it would stay behind as an older version of what the operator has just sent.
std::vector<std::string> JobSend::jobsInTheWay(const std::string& file,
                                               const std::string& nameInside) const {
    std::vector<std::string> jobs{tools_.directory.jobEntry(file)};
    if (!nameInside.empty())
        jobs.push_back(tools_.directory.jobEntry(nameInside));
    if (jobs.front() == jobs.back() && jobs.size() > 1)
        jobs.pop_back();
    std::erase(jobs, std::string());
    return jobs;
}

std::vector<std::string> JobSend::shownNames(const std::string& file,
                                             const std::vector<std::string>& jobs) const {
    std::vector<std::string> names = jobs;
    std::replace(names.begin(), names.end(), tools_.directory.jobEntry(file), file);
    return names;
}

TransferOutcome JobSend::askAll(const std::vector<std::string>& names) const {
    TransferOutcome outcome = TransferOutcome::Done;
    for (const std::string& name : names) {
        outcome = tools_.question.ask(name);
        if (outcome != TransferOutcome::Done)
            break;
    }
    return outcome;
}

bool JobSend::removeAll(const std::vector<std::string>& jobs) {
    for (const std::string& job : jobs) {
        if (!deletion_.remove(job))
            return false;
        tools_.directory.remove(job);
    }
    return true;
}

bool JobSend::transmit(const std::string& file, const std::string& libraryName,
                       std::int32_t index) {
    tools_.progress.show(tools_.progress.transferring(file));
    const std::int16_t handle = tools_.link.connect();
    if (handle < 0)
        return false;
    const std::int16_t sent = tools_.link.library().BscDownLoad(handle, libraryName.c_str());
    return tools_.link.finish(handle, sent, "BscDownLoad", index);
}

} // namespace vantrel
