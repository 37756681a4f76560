#include "link/JobSend.h"

#include "base/PathRules.h"
#include "base/TextCase.h"
#include "link/InterruptedFetches.h"
#include "link/JobFile.h"
#include "link/JobNameSet.h"
#include "link/LinkConnection.h"
#include "link/OverwriteQuestion.h"
#include "link/SentFile.h"
#include "link/SessionErrorRecord.h"
#include "link/SessionProgress.h"
#include "link/SessionServices.h"
#include "link/Zurolink.h"
#include "platform/TextEncoding.h"

#include <algorithm>
#include <iterator>

namespace vantrel {
namespace {

/// Whether a controller can keep a job under the name of its "//NAME" line.
bool isUsableJobName(const std::string& name) {
    return PathRules::isPlainName(name) && PathRules::isPlainName(name + ".JBI") &&
           toCodePage(name);
}

/// Whether the controller's job is deleted before the file is sent.
bool deletesFor(const std::string& file) {
    return jobExtension(file) == ".JBI";
}

} // namespace

bool JobDeletion::remove(const std::string& name, const std::function<bool()>& mayBegin) {
    progress_.show(progress_.deleting(name));
    const auto libraryName = link_.libraryFileName(normalisedJobName(name), "BscSelectJob");
    return libraryName && removeOver(*libraryName, mayBegin);
}

bool JobDeletion::removeOver(const std::string& libraryName,
                             const std::function<bool()>& mayBegin) {
    const std::int16_t handle = link_.connect();
    if (handle < 0)
        return false;
    if (mayBegin && !mayBegin()) {
        link_.disconnect(handle);
        return false;
    }
    const std::int16_t selected = link_.library().BscSelectJob(handle, libraryName.c_str());
    if (selected != 0)
        return link_.finish(handle, selected, "BscSelectJob");
    const std::int16_t deleted = link_.library().BscDeleteJob(handle);
    link_.finish(handle, deleted, "BscDeleteJob");
    return deleted == 0;
}

void JobSend::begin() {
    unreplaced_.clear();
    storedAs_.clear();
}

bool JobSend::isWhole(const std::string& file, std::int32_t index) {
    return accept(interrupted_.forbidsSending(tools_.properties.path, file), index);
}

bool JobSend::accept(std::int16_t code, std::int32_t index) {
    if (code == 0)
        return true;
    tools_.error.set(code, "", index);
    if (code == session_code::markUnusable)
        tools_.error.mark = interrupted_.unusableMark();
    return false;
}

TransferOutcome JobSend::send(const std::string& file, std::int32_t index,
                              const ReplaceConsent& consent, SentFile* sent) {
    tools_.inTheWay.clear();
    storedAs_.clear();
    const auto libraryName = tools_.link.libraryFileName(file, "BscDownLoad", index);
    if (!libraryName || !tools_.link.isAsBegun() || !isWhole(file, index))
        return TransferOutcome::Failed;
    const std::string path = PathRules().join(tools_.properties.path, file);
    auto job = isJobFileName(file) || sent ? read(file, index) : JobFile();
    if (!job)
        return TransferOutcome::Failed;
    const TransferOutcome outcome = prepare(file, *job, index, consent);
    if (!goesOn(outcome))
        return outcome;
    const std::string& inside = job->name().text;
    const std::string arrivesAs = inside.empty() ? file : jobFileName(inside);
    const std::string shownBefore = tools_.directory.entry(arrivesAs);
    const std::vector<std::string> deleted = deletedUnder(arrivesAs);
    if (!transmit(file, *libraryName, arrivesAs, index))
        return TransferOutcome::Failed;
    tools_.directory.insert(arrivesAs);
    if (sent)
        *sent = {path, job->takeContent(), arrivesAs, shownBefore, !deletesFor(file), deleted};
    return outcome;
}

std::optional<JobFile> JobSend::read(const std::string& file, std::int32_t index) {
    auto job = JobFile::read(PathRules().join(tools_.properties.path, file));
    if (job)
        return std::move(*job);
    tools_.error.set(session_code::fileNotReadable, "", index);
    return {};
}

// Every question comes before the first deletion, so that a refusal leaves the controller as it
// was.
TransferOutcome JobSend::prepare(const std::string& file, JobFile& job, std::int32_t index,
                                 const ReplaceConsent& consent) {
    if (!isJobFileName(file))
        return TransferOutcome::Done;
    const auto jobs = jobsInTheWay(file, job.name().text);
    if (jobs.empty())
        return TransferOutcome::Done;
    const bool deletes = deletesFor(file);
    if (const std::int16_t code = deletes ? forbids(job, jobs) : std::int16_t{0}; code != 0) {
        tools_.error.set(code, "", index);
        return TransferOutcome::Failed;
    }
    tools_.inTheWay = shownNames(file, jobs);
    storedAs_ = deletes ? otherName(file, job.name().text) : std::string();
    const TransferOutcome outcome = agree(file, job, index, consent);
    if (!goesOn(outcome))
        return outcome;
    return !deletes || removeAll(jobs, file, job, index) ? outcome : TransferOutcome::Failed;
}

// A file that the library may not be able to open, or that the controller could give no name to, or
// another name than the one that was looked for, would cost it the old job for nothing; when none
// is in the way, the judgement is the controller's.
std::int16_t JobSend::forbids(const JobFile& job, const std::vector<std::string>& jobs) const {
    if (!job.isUnshared())
        return session_code::fileNotReadable;
    if (!isUsableJobName(job.name().text))
        return session_code::jobNameUnusable;
    if (!job.name().isControllers)
        return session_code::jobNameNotInCodePage;
    const bool isAmbiguous = std::ranges::any_of(
        jobs, [this](const std::string& entry) { return tools_.directory.isAmbiguous(entry); });
    return isAmbiguous ? session_code::jobIsAmbiguous : std::int16_t{0};
}

TransferOutcome JobSend::agree(const std::string& file, JobFile& job, std::int32_t index,
                               const ReplaceConsent& consent) {
    if (consent.toAll)
        return TransferOutcome::Done;
    if (consent.toThese) {
        const auto& asked = *consent.toThese;
        const bool isAsked = std::ranges::all_of(tools_.inTheWay, [&asked](const auto& name) {
            return std::ranges::find(asked, name) != asked.end();
        });
        const bool isAgreed = isAsked && storedAs_ == consent.storedAs;
        if (!isAgreed)
            tools_.error.set(session_code::fileChanged, "", index);
        return isAgreed ? TransferOutcome::Done : TransferOutcome::Failed;
    }
    const TransferOutcome outcome = askAll(file);
    const bool goesWrong = goesOn(outcome) && !accept(readAgain(file, job), index);
    return goesWrong ? TransferOutcome::Failed : outcome;
}

std::int16_t JobSend::readAgain(const std::string& file, JobFile& job) {
    auto now = JobFile::read(PathRules().join(tools_.properties.path, file));
    if (!now || (deletesFor(file) && !now->isUnshared()))
        return session_code::fileNotReadable;
    const std::int16_t code = interrupted_.forbidsSending(tools_.properties.path, file);
    const bool isSame = now->name() == job.name();
    job = std::move(*now);
    return code != 0 || isSame ? code : session_code::fileChanged;
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

std::string JobSend::otherName(const std::string& file, const std::string& nameInside) const {
    const std::string stored = jobFileName(nameInside);
    const bool isOther = !isSameJob(file, stored) && !tools_.directory.jobEntry(file).empty();
    return isOther ? stored : std::string();
}

TransferOutcome JobSend::askAll(const std::string& file) const {
    TransferOutcome outcome = TransferOutcome::Done;
    for (const std::string& name : tools_.inTheWay) {
        outcome = tools_.question.ask({.name = name,
                                       .storedAs = name == file ? storedAs_ : std::string(),
                                       .pcFile = PathRules().join(tools_.properties.path, file)});
        if (outcome != TransferOutcome::Done)
            break;
    }
    return outcome;
}

// Nothing is deleted for a file that by now could not be sent, or would arrive as another job.
bool JobSend::removeAll(const std::vector<std::string>& jobs, const std::string& file, JobFile& job,
                        std::int32_t index) {
    std::int16_t code = 0;
    const auto mayBegin = [&] {
        code = readAgain(file, job);
        return code == 0;
    };
    for (const std::string& name : jobs) {
        if (!deletion_.remove(name, mayBegin)) {
            // Whatever the link says to being closed.
            accept(code, index);
            return false;
        }
        tools_.directory.remove(name);
        unreplaced_.push_back(name);
    }
    return true;
}

bool JobSend::transmit(const std::string& file, const std::string& libraryName,
                       const std::string& arrivesAs, std::int32_t index) {
    tools_.progress.show(tools_.progress.transferring(file));
    const std::int16_t handle = tools_.link.connect();
    if (handle < 0)
        return false;
    // Connecting takes long and lets events run: somebody may have begun to fetch the file.
    if (const auto code = interrupted_.forbidsSending(tools_.properties.path, file); code != 0) {
        tools_.link.disconnect(handle);
        return accept(code, index);
    }
    const std::int16_t sent = tools_.link.library().BscDownLoad(handle, libraryName.c_str());
    if (sent == 0)
        replaced(arrivesAs);
    return tools_.link.finish(handle, sent, "BscDownLoad", index);
}

std::vector<std::string> JobSend::deletedUnder(const std::string& arrivesAs) const {
    std::vector<std::string> jobs;
    std::ranges::copy_if(unreplaced_, std::back_inserter(jobs),
                         [&](const std::string& job) { return isSameJob(job, arrivesAs); });
    return jobs;
}

void JobSend::replaced(const std::string& arrivesAs) {
    std::erase_if(unreplaced_,
                  [&arrivesAs](const std::string& job) { return isSameJob(job, arrivesAs); });
}

} // namespace vantrel
